#include "exchange/ImpTelling.h"
#include "exchange/ImportToets.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class Telling : public ImportToets {
 protected:
  // What an import of these bytes would add, in words.
  std::string Tel(std::string_view bytes) {
    SchrijfBytes(Bestand(), bytes);
    std::string tekst;
    InSessie([&](Hoofdmodule& hoofd) {
      RegelLezer lezer;
      ASSERT_FALSE(lezer.Open(Bestand()));
      tekst = TellingTekst(TelImport(lezer, hoofd.bestanden.Bestand(BestandSoort::Plaatsen)));
    });
    return tekst;
  }
};

constexpr std::string_view kFamilie = R"(
    0 @I1@ INDI
    1 BIRT
    2 PLAC Delft
    1 CHR
    2 PLAC DELFT
    1 DEAT
    2 PLAC Gouda ?
    1 RESI
    2 PLAC Niet geteld
    0 @I2@ INDI
    1 BURI
    2 PLAC Utrecht
    0 @F1@ FAM
    1 MARR
    2 PLAC Gouda
    2 DATE 1900
  )";

TEST_F(Telling, TeltPersonenRelatiesEnPlaatsenDieErNogNietZijn) {
  EXPECT_EQ(Tel(Ged(kFamilie)), "Erbij komen 2 personen, 1 relatie en 3 plaatsen");
  Bouw().Plaats("Gouda");
  EXPECT_EQ(Tel(Ged(kFamilie)), "Erbij komen 2 personen, 1 relatie en 2 plaatsen");
}

TEST_F(Telling, ZegtWatDeImportDoet) {
  const std::string telling = Tel(Ged(kFamilie));
  Importeer(Ged(kFamilie));
  EXPECT_EQ(Aantallen(), "3 2 4 1");
  EXPECT_EQ(telling, "Erbij komen 2 personen, 1 relatie en 3 plaatsen");
  EXPECT_EQ(Tel(Ged(kFamilie)), "Erbij komen 2 personen, 1 relatie en 0 plaatsen");
}

TEST_F(Telling, TeltPlaatsenVanEenEigenBestandAlsRecords) {
  const std::string bestand = Ged(R"(
      1 _LBVORM 1
      0 @P1@ _LBPLTS
      1 _LBPROV ZH
      1 NAME Del@@ft
      0 @P2@ _LBPLTS
      1 NAME Del@@ft
      0 @P3@ _LBPLTS
      1 NAME
      0 @I1@ INDI
      1 BIRT
      2 _LBPLTS @P1@
      2 PLAC Del@@ft, Zuid-Holland, Nederland
      1 DEAT
      2 PLAC Gouda
      1 CREM
      2 _LBALS BURI
      2 PLAC Utrecht
    )");
  const std::string zonder = Ged(R"(
      1 _LBVORM 1
      0 @I1@ INDI
      1 BIRT
      2 _LBPLTS @P1@
      2 PLAC Delft
      0 @I2@ INDI
      1 BIRT
      2 PLAC Gouda
    )");
  EXPECT_EQ(Tel(zonder), "Erbij komen 2 personen, 0 relaties en 1 plaats");
  EXPECT_EQ(Tel(bestand), "Erbij komen 1 persoon, 0 relaties en 5 plaatsen");
  Bouw().Plaats("DEL@FT", "zh");
  EXPECT_EQ(Tel(bestand), "Erbij komen 1 persoon, 0 relaties en 4 plaatsen");
  // The name of Gouda is looked for among those of all places.
  Importeer(bestand, R"(! uitroep "Plaatsrecord4 is incompleet.")");
  EXPECT_EQ(Aantallen(), "2 1 6 1");
  EXPECT_EQ(Tel(bestand), "Erbij komen 1 persoon, 0 relaties en 1 plaats");
}

TEST_F(Telling, TeltVervolgrecordsApart) {
  const auto vervolg = [&](int relaties, int kinderen) {
    std::string regels = "1 _LBVORM 1\n0 @I1@ INDI\n1 FAMC @F1@\n";
    for (int i = 0; i < relaties; ++i) regels += i % 2 == 0 ? "1 FAMS @F1@\n" : "1 _LBFAMS\n";
    regels += "0 @F1@ FAM\n1 HUSB @I1@\n1 FAMS @F1@\n";
    for (int i = 0; i < kinderen; ++i) regels += i % 2 == 0 ? "1 CHIL @I1@\n" : "1 _LBCHIL\n";
    regels +=
        "0 @I2@ INDI\n1 FAMS @F1@\n1 BIRT\n2 FAMS @F1@\n1 CHIL @I1@\n0 @F2@ FAM\n1 CHIL @I1@\n";
    SchrijfBytes(Bestand(), Ged(regels));
    std::string uit;
    InSessie([&](Hoofdmodule& hoofd) {
      RegelLezer lezer;
      ASSERT_FALSE(lezer.Open(Bestand()));
      const ImpTelling telling = TelImport(lezer, hoofd.bestanden.Bestand(BestandSoort::Plaatsen));
      EXPECT_EQ(telling.personen, 2);
      EXPECT_EQ(telling.relaties, 2);
      uit = GetalTekst(telling.vervolgPersonen) + " " + GetalTekst(telling.vervolgRelaties);
    });
    return uit;
  };
  EXPECT_EQ(vervolg(3, 15), "0 0");
  EXPECT_EQ(vervolg(4, 15), "1 0");
  EXPECT_EQ(vervolg(3, 16), "0 1");
  EXPECT_EQ(vervolg(9, 40), "1 1");
}

TEST_F(Telling, EindigtBijTRLREnBijEenRegelDieGeenGedcomIs) {
  EXPECT_EQ(Tel("0 HEAD\n0 @I1@ INDI\n0 TRLR\n0 @I2@ INDI\n"),
            "Erbij komen 1 persoon, 0 relaties en 0 plaatsen");
  EXPECT_EQ(Tel("0 HEAD\n0 @I1@ INDI\nBeste Jan,\n0 @I2@ INDI\n"),
            "Erbij komen 1 persoon, 0 relaties en 0 plaatsen");
}

TEST_F(Telling, LeestPlaatsenInDeTekensetVanHetBestand) {
  Bouw().Plaats("K\xF6ln");
  EXPECT_EQ(Tel(GedIn("ANSEL", "0 @I1@ INDI\n1 BIRT\n2 PLAC K\xE8oln")),
            "Erbij komen 1 persoon, 0 relaties en 0 plaatsen");
}

TEST_F(Telling, TeltEenPlaatsZoalsHijWordtOpgeslagen) {
  EXPECT_EQ(Tel(Ged("0 @I1@ INDI\n1 BIRT\n2 PLAC Een plaats met een lange naam A\n1 DEAT\n"
                    "2 PLAC Een plaats met een lange naam B")),
            "Erbij komen 1 persoon, 0 relaties en 1 plaats");
}

TEST_F(Telling, InEenOmgezetBestandTeltDeNaamVanDeTekensetNiet) {
  Importeer(Ged("0 @I1@ INDI\n1 BIRT\n2 PLAC \xC5s"));
  SchrijfBytes(Bestand(), GedIn("ANSEL", "0 @I1@ INDI\n1 BIRT\n2 PLAC \xC3\x85s"));
  InSessie([&](Hoofdmodule& hoofd) {
    RegelLezer lezer;
    ASSERT_FALSE(lezer.Open(Bestand()));
    lezer.BeginMet(Codering::Utf8);
    EXPECT_EQ(TelImport(lezer, hoofd.bestanden.Bestand(BestandSoort::Plaatsen)).plaatsen, 0);
  });
}

}  // namespace
}  // namespace lb77
