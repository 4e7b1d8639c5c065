// The lines of records.
#include <gtest/gtest.h>

#include "exchange/FaalUitvoer.h"
#include "exchange/Ged551Schrijver.h"
#include "exchange/Ged551Toets.h"
#include "store/Rubrieken.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class Ged551SchrijverTest : public ::testing::Test {
 protected:
  std::string Persoon(std::int16_t nr) {
    return Exporteer551(set).Van("0 @I" + std::to_string(nr) + "@ INDI");
  }
  std::string Relatie(std::int16_t nr) {
    return Exporteer551(set).Van("0 @F" + std::to_string(nr) + "@ FAM");
  }

  ProefSet set;
};

TEST_F(Ged551SchrijverTest, DeKopNoemtVersieTekensetEnVormVanPlaatsen) {
  set.bouw.Man("Jan", "Jansen");
  EXPECT_EQ(Exporteer551(set).Van("\xEF\xBB\xBF"
                                  "0 HEAD"),
            "1 SOUR LB77\n2 VERS " LB77_VERSIE
            "\n2 NAME LB77\n1 DATE 5 MAR 2024\n2 TIME 14:07:09\n1 SUBM @S1@\n1 FILE PROEF.GED\n"
            "1 COPR Jan de Boer\n1 GEDC\n2 VERS 5.5.1\n2 FORM LINEAGE-LINKED\n1 CHAR UTF-8\n"
            "1 LANG Dutch\n1 _LBVORM 1\n1 PLAC\n2 FORM City, Province, Country\n");
  EXPECT_EQ(Exporteer551(set).Van("0 @S1@ SUBM"),
            "1 NAME Jan de Boer\n1 ADDR Kerkstraat 1\n"
            "2 ADR1 Kerkstraat 1\n2 CITY Delft\n2 POST 1234 AB\n2 CTRY Nederland\n"
            "1 PHON 015-1234567\n");
  EXPECT_TRUE(Exporteer551(set).bestand.ends_with("\n0 TRLR\n"));
}

TEST_F(Ged551SchrijverTest, EenAchternaamHeeftZijnVoorvoegselApart) {
  set.bouw.Man("Jan", "Van den Berg");
  set.bouw.Man("", "Jansen");
  set.bouw.Vrouw("An", "");
  set.bouw.Persoon('?', "", "");
  EXPECT_EQ(Persoon(2),
            "1 NAME Jan /Van den Berg/\n2 GIVN Jan\n2 _LBACHT Van den Berg\n2 SPFX Van den\n"
            "2 SURN Berg\n1 SEX M\n");
  EXPECT_EQ(Persoon(3), "1 NAME /Jansen/\n2 SURN Jansen\n1 SEX M\n");
  EXPECT_EQ(Persoon(4), "1 NAME An //\n2 GIVN An\n1 SEX F\n");
  EXPECT_EQ(Persoon(5), "");
}

// The sort form leaves a second word out that is no prefix: the name keeps it.
TEST_F(Ged551SchrijverTest, HetVoorvoegselIsAlleenWatVooraanStaat) {
  set.bouw.Man("Jan", "van Oranje Nassau");
  set.bouw.Man("Jan", "Berg, van");
  set.bouw.Man("Jan", "van  Berg");
  set.bouw.Man("Jan", "Vandam, van");
  EXPECT_EQ(Persoon(2),
            "1 NAME Jan /van Oranje Nassau/\n2 GIVN Jan\n2 _LBACHT van Oranje Nassau\n2 SPFX van\n"
            "2 SURN Oranje Nassau\n1 SEX M\n");
  EXPECT_EQ(Persoon(3), "1 NAME Jan /Berg, van/\n2 GIVN Jan\n2 SURN Berg, van\n1 SEX M\n");
  EXPECT_EQ(Persoon(4),
            "1 NAME Jan /van  Berg/\n2 GIVN Jan\n2 _LBACHT van  Berg\n2 SPFX van\n2 SURN Berg\n"
            "1 SEX M\n");
  EXPECT_EQ(Persoon(5), "1 NAME Jan /Vandam, van/\n2 GIVN Jan\n2 SURN Vandam, van\n1 SEX M\n");
}

TEST_F(Ged551SchrijverTest, TekensDieIetsBetekenenStaanHeelInEenEigenTag) {
  set.bouw.Persoon('Q', "A/B", "C/D", {{"Beroep", "e@f"}});
  EXPECT_EQ(Persoon(2),
            "1 NAME A-B /C-D/\n2 _LBVOOR A/B\n2 GIVN A-B\n2 _LBACHT C/D\n2 SURN C-D\n"
            "1 _LBGESL Q\n1 SEX U\n1 OCCU e@@f\n");
}

TEST_F(Ged551SchrijverTest, EenGebeurtenisHeeftDatumPlaatsEnEenDoop) {
  set.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  const std::int16_t delft = set.bouw.Plaats("Delft", "ZH");
  const std::int16_t gent = set.bouw.Plaats("Gent", "B");
  set.bouw.Man("", "X",
               {{"GebDatum", "31-08-1880"},
                {"GebCorr", "C"},
                {"GebPlaats", delft},
                {"DoopDatum", "12-10-1880"},
                {"DoopPlaats", gent + 10000},
                {"DoopReligie", "NH"},
                {"OvlDatum", "00-00-1962"},
                {"OvlPlaats", delft + 20000},
                {"BegrDatum", "00-03-1962"}});
  EXPECT_EQ(
      Persoon(2),
      "1 NAME /X/\n2 SURN X\n1 SEX M\n"
      "1 BIRT\n2 DATE ABT 31 AUG 1880\n2 _LBPLTS @P2@\n2 PLAC Delft, Zuid-Holland, Nederland\n"
      "1 BAPM\n2 DATE 12 OCT 1880\n2 _LBPLTS @P3@\n"
      "3 _LBZEKER verm.\n2 PLAC Gent, , Belgi\xC3\xAB\n"
      "1 DEAT\n2 DATE 1962\n2 _LBPLTS @P2@\n3 _LBZEKER (?)\n"
      "2 PLAC Delft, Zuid-Holland, Nederland\n"
      "1 BURI\n2 DATE MAR 1962\n1 _LBGEZ NH\n1 RELI Nederlands Hervormd\n");
  EXPECT_EQ(Exporteer551(set).Van("0 @P3@ _LBPLTS"), "1 _LBPROV B\n1 NAME Gent\n");
}

TEST_F(Ged551SchrijverTest, EenPeriodeEindigtInDeVelderachterHaar) {
  const std::int16_t delft = set.bouw.Plaats("Delft");
  set.bouw.Man("", "X",
               {{"GebDatum", "00-00-1890"},
                {"GebCorr", "T"},
                {"DoopDatum", "31-12-1895"},
                {"DoopPlaats", delft},
                {"OvlDatum", "00-00-1960"},
                {"OvlCorr", "T"},
                {"BegrDatum", "00-00-1962"}});
  EXPECT_EQ(Persoon(2),
            "1 NAME /X/\n2 SURN X\n1 SEX M\n1 BIRT\n2 DATE BET 1890 AND 31 DEC 1895\n"
            "1 BAPM\n2 _LBPLTS @P2@\n2 PLAC Delft\n1 DEAT\n2 DATE BET 1960 AND 1962\n");
}

TEST_F(Ged551SchrijverTest, EenReligieIsVanDePersoon) {
  set.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  set.bouw.Man("", "X", {{"DoopReligie", "NH"}});
  set.bouw.Man("", "Y", {{"DoopReligie", "nh"}});
  EXPECT_EQ(Persoon(2), "1 NAME /X/\n2 SURN X\n1 SEX M\n1 _LBGEZ NH\n1 RELI Nederlands Hervormd\n");
  EXPECT_EQ(Persoon(3), "1 NAME /Y/\n2 SURN Y\n1 SEX M\n1 _LBGEZ nh\n1 RELI Nederlands Hervormd\n");
}

TEST_F(Ged551SchrijverTest, EenCrematieHeetOokVoorDeImportEenBegrafenis) {
  set.bouw.Man("", "X", {{"BegrCrem", 1}});
  EXPECT_EQ(Persoon(2), "1 NAME /X/\n2 SURN X\n1 SEX M\n1 CREM\n2 _LBALS BURI\n2 _LBCREM 1\n");
}

TEST_F(Ged551SchrijverTest, ElkeOpmerkingStaatBijHaarRubriek) {
  const std::int16_t nr = set.bouw.Man("Jan", "X", {{"GebDatum", "00-00-1890"}});
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kGebDatum, {"een", "twee"}, 7);
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kGebDatum, {"drie"}, 64);
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kVoornaam, {"vier"}, 1);
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, {"vijf"}, 1);
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kBeroep, {"zes"}, 1);
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kOvlPlaats, {"zeven"}, 1);
  EXPECT_EQ(Persoon(nr),
            "1 NAME Jan /X/\n2 GIVN Jan\n2 SURN X\n2 NOTE vier\n3 _LBRUBR 2\n3 _LBPROG 1\n1 SEX M\n"
            "1 BIRT\n2 DATE 1890\n2 NOTE een\n3 CONT twee\n3 _LBPROG 7\n2 NOTE drie\n3 _LBPROG 64\n"
            "1 DEAT\n2 NOTE zeven\n3 _LBRUBR 128\n3 _LBPROG 1\n"
            "1 NOTE vijf\n2 _LBPROG 1\n1 NOTE zes\n2 _LBRUBR 2048\n2 _LBPROG 1\n");
}

TEST_F(Ged551SchrijverTest, OpmerkingenBijPlaatsBeroepEnReligieStaanOnderHunRegel) {
  set.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  const std::int16_t delft = set.bouw.Plaats("Delft");
  const std::int16_t nr =
      set.bouw.Man("", "X", {{"GebPlaats", delft}, {"Beroep", "smid"}, {"DoopReligie", "NH"}});
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kGebPlaats, {"een"}, 1);
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kBeroep, {"twee"}, 1);
  set.bouw.OpmerkingBijPersoon(nr, persoonrubriek::kReligie, {"drie"}, 1);
  EXPECT_EQ(Persoon(nr),
            "1 NAME /X/\n2 SURN X\n1 SEX M\n1 BIRT\n2 _LBPLTS @P2@\n2 PLAC Delft\n3 NOTE een\n"
            "4 _LBPROG 1\n1 _LBGEZ NH\n1 RELI Nederlands Hervormd\n2 NOTE drie\n3 _LBRUBR 64\n3 "
            "_LBPROG 1\n"
            "1 OCCU smid\n2 NOTE twee\n3 _LBPROG 1\n");
}

// A damaged link into the remarks of somebody else takes none from him.
TEST_F(Ged551SchrijverTest, EenOpmerkingBlijftBijWieZijNoemt) {
  const std::int16_t jan = set.bouw.Man("", "Jan");
  const std::int16_t piet = set.bouw.Man("", "Piet");
  const std::int16_t relatie = set.bouw.Relatie(0, 0);
  set.bouw.OpmerkingBijPersoon(jan, persoonrubriek::kAlgemeen, {"van Jan"});
  for (const char* tekst : {"van Piet", "ook van Piet"}) {
    set.bouw.OpmerkingBijPersoon(piet, persoonrubriek::kAlgemeen, {tekst});
  }
  ASSERT_TRUE(set.Opmerking.Wijzig(2, {{"BijZelfde", "4"}}));
  set.bouw.WijzigRelatie(relatie, {{"OpmRecord", "3"}, {"OpmCode", "-256"}});
  set.bouw.Relatie(0, 0);
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  EXPECT_EQ(uitvoer.Van("0 @I2@ INDI"),
            "1 NAME /Jan/\n2 SURN Jan\n1 SEX M\n1 NOTE van Jan\n2 _LBPROG 23\n");
  EXPECT_EQ(uitvoer.Van("0 @I3@ INDI"),
            "1 NAME /Piet/\n2 SURN Piet\n1 SEX M\n1 NOTE van Piet\n2 _LBPROG 23\n"
            "1 NOTE ook van Piet\n2 _LBPROG 23\n");
  EXPECT_EQ(uitvoer.Van("0 @F2@ FAM"), "");
  EXPECT_NE(uitvoer.log.find("al bij een ander staat: 2 keer\n"), std::string::npos) << uitvoer.log;
}

// Whom a remark names does not have it: it goes with who does.
TEST_F(Ged551SchrijverTest, EenOpmerkingDieEenVreemdeNoemtBlijftInHaarKetting) {
  const std::int16_t jan = set.bouw.Man("", "Jan");
  const std::int16_t piet = set.bouw.Man("", "Piet");
  set.bouw.OpmerkingBijPersoon(jan, persoonrubriek::kAlgemeen, {"van Jan"});
  // A continuation record is nobody, whatever it holds.
  const std::int16_t vervolg = set.bouw.Man("", "", {{"GebCorr", "Z"}, {"OpmRecord", "2"}});
  const std::int16_t karel = set.bouw.Man("", "Karel", {{"OpmRecord", "-5"}});
  for (const int naam : {int{piet}, int{vervolg}, int{karel}, 99, 1, 0, -5}) {
    ASSERT_TRUE(set.Opmerking.Wijzig(2, {{"BijRecord", std::to_string(naam)}}));
    EXPECT_EQ(Persoon(jan), "1 NAME /Jan/\n2 SURN Jan\n1 SEX M\n1 NOTE van Jan\n2 _LBPROG 23\n")
        << naam;
  }
}

TEST_F(Ged551SchrijverTest, EenVolleSchijfBijElkeRegelEindigtDeGang) {
  const std::int16_t man = set.bouw.Man("Jan", "Bos", {{"GebPlaats", set.bouw.Plaats("Delft")}});
  set.bouw.OpmerkingBijPersoon(man, persoonrubriek::kAlgemeen, {"een", "twee"});
  static_cast<void>(set.bouw.Relatie(man, 0, {}, {{"OtrDatum", "00-00-1900"}}));
  const ExpSelectie selectie = AllesVan(set);
  const auto schrijf = [&](FaalUitvoer& uit) {
    FaalUitvoer log;
    const Gegevens gegevens{set.Persoon,   set.Relatie, set.Plaats,
                            set.Opmerking, set.volgers, set.schrijfwijze};
    Ged551Schrijver schrijver(uit, log, gegevens, selectie,
                              {.nu = {2026, 11, 2, 9, 5, 7}, .bestandsnaam = "UIT.GED"});
    return LoopSelectie(schrijver, selectie,
                        {[&] { return !uit.Fout(); }, [](const ExpTelling&) {}});
  };
  FaalUitvoer heel;
  EXPECT_EQ(schrijf(heel).relaties, 1);
  ASSERT_GT(heel.Aantal(), 25U);
  for (std::size_t ruimte = 0; ruimte < heel.Aantal(); ++ruimte) {
    FaalUitvoer uit(ruimte);
    static_cast<void>(schrijf(uit));
    EXPECT_TRUE(uit.Fout()) << ruimte;
    EXPECT_EQ(uit.Aantal(), ruimte);
    EXPECT_TRUE(heel.Regels().starts_with(uit.Regels())) << ruimte;
  }
}

TEST_F(Ged551SchrijverTest, EenRelatieHeeftPersonenKinderenEnGebeurtenissen) {
  set.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  const std::int16_t man = set.bouw.Man("", "X");
  const std::int16_t vrouw = set.bouw.Vrouw("", "Y");
  const std::int16_t kind = set.bouw.Man("", "Z");
  const std::int16_t nr = set.bouw.Relatie(man, vrouw, {kind},
                                           {{"OtrDatum", "01-05-1900"},
                                            {"WHuwDatum", "12-05-1900"},
                                            {"HuwCorr", "V"},
                                            {"KHuwDatum", "13-05-1900"},
                                            {"Religie", "NH"}});
  EXPECT_EQ(
      Relatie(nr),
      "1 HUSB @I2@\n1 WIFE @I3@\n1 CHIL @I4@\n1 MARB\n2 DATE 1 MAY 1900\n"
      "1 MARR\n2 _LBALS _LBWET\n2 TYPE Burgerlijk huwelijk\n2 DATE BEF 12 MAY 1900\n"
      "1 MARR\n2 _LBALS _LBKERK\n2 _LBGEZ NH\n2 TYPE Kerkelijk huwelijk, Nederlands Hervormd\n"
      "2 DATE 13 MAY 1900\n");
  EXPECT_EQ(Persoon(kind), "1 NAME /Z/\n2 SURN Z\n1 SEX M\n1 FAMC @F2@\n");
  EXPECT_EQ(Persoon(vrouw), "1 NAME /Y/\n2 SURN Y\n1 SEX F\n1 FAMS @F2@\n");
}

TEST_F(Ged551SchrijverTest, OokVanEenHuwelijkEindigtEenPeriodeInDeVelderachter) {
  const std::int16_t delft = set.bouw.Plaats("Delft");
  const std::int16_t nr = set.bouw.Relatie(0, 0, {},
                                           {{"WHuwDatum", "00-00-1890"},
                                            {"HuwCorr", "T"},
                                            {"KHuwDatum", "31-12-1895"},
                                            {"KHuwPlaats", delft}});
  EXPECT_EQ(Relatie(nr),
            "1 MARR\n2 _LBALS _LBWET\n2 TYPE Burgerlijk huwelijk\n"
            "2 DATE BET 1890 AND 31 DEC 1895\n"
            "1 MARR\n2 _LBALS _LBKERK\n2 TYPE Kerkelijk huwelijk\n2 _LBPLTS @P2@\n2 PLAC Delft\n");
}

TEST_F(Ged551SchrijverTest, DeSoortVanEenRelatieIsHaarTYPE) {
  set.schrijfwijze.gezindten[1] = "GGGemengd";
  set.bouw.Relatie(0, 0, {}, {{"HuwSwPs", 1}, {"HuwSoort", "GG"}});
  set.bouw.Relatie(0, 0, {}, {{"HuwSwPs", 2}});
  set.bouw.Relatie(0, 0, {}, {{"HuwSoort", "GG"}});
  set.bouw.Relatie(0, 0, {}, {{"WHuwDatum", "00-00-1900"}});
  EXPECT_EQ(Relatie(2),
            "1 MARR\n2 _LBALS _LBWET\n2 _LBBOND Sw\n2 _LBSOORT GG\n2 TYPE Samenwonen, Gemengd\n");
  EXPECT_EQ(Relatie(3),
            "1 MARR\n2 _LBALS _LBWET\n2 _LBBOND Ps\n2 TYPE Geregistreerd partnerschap\n");
  EXPECT_EQ(Relatie(4), "1 MARR\n2 _LBALS _LBWET\n2 _LBSOORT GG\n2 TYPE Gemengd\n");
  EXPECT_EQ(Relatie(5), "1 MARR\n2 _LBALS _LBWET\n2 DATE 1900\n");
}

TEST_F(Ged551SchrijverTest, EenOpmerkingBijDeSoortStaatBijHetHuwelijk) {
  const std::int16_t nr = set.bouw.Relatie(0, 0, {}, {{"HuwSoort", "ZZ"}});
  set.bouw.OpmerkingBijRelatie(nr, relatierubriek::kHuwSoort, {"een"}, 1);
  EXPECT_EQ(Relatie(nr),
            "1 MARR\n2 _LBALS _LBWET\n2 _LBSOORT ZZ\n2 TYPE ZZ\n2 NOTE een\n3 _LBRUBR -16\n"
            "3 _LBPROG 1\n");
}

TEST_F(Ged551SchrijverTest, EenScheidingIsGeenKerkelijkHuwelijk) {
  const std::int16_t nr =
      set.bouw.Relatie(0, 0, {}, {{"KHuwSch", 1}, {"KHuwDatum", "00-00-1910"}, {"Religie", "NH"}});
  set.bouw.OpmerkingBijRelatie(nr, relatierubriek::kKHuwDatum, {"een"}, 1);
  set.bouw.OpmerkingBijRelatie(nr, relatierubriek::kReligie, {"twee"}, 1);
  set.bouw.OpmerkingBijRelatie(nr, relatierubriek::kAlgemeen, {"drie"}, 1);
  EXPECT_EQ(Relatie(nr),
            "1 DIV\n2 _LBALS _LBKERK\n2 _LBGEZ NH\n2 DATE 1910\n2 NOTE een\n3 _LBPROG 1\n"
            "2 NOTE twee\n3 _LBRUBR -128\n3 _LBPROG 1\n1 NOTE drie\n2 _LBPROG 1\n");
}

TEST_F(Ged551SchrijverTest, LegePlekkenTussenVerwijzingenBlijven) {
  const std::int16_t man = set.bouw.Man("", "X");
  const std::int16_t kind = set.bouw.Man("", "Z");
  set.bouw.Relatie(man, 0, {kind, kind});
  set.bouw.Relatie(man, 0);
  set.bouw.WijzigPersoon(man, {{"Relatie1", "0"}});
  set.bouw.WijzigRelatie(2, {{"Kind1", "0"}});
  EXPECT_EQ(Persoon(man), "1 NAME /X/\n2 SURN X\n1 SEX M\n1 _LBFAMS\n1 FAMS @F3@\n");
  EXPECT_EQ(Relatie(2), "1 HUSB @I2@\n1 _LBCHIL\n1 CHIL @I3@\n");
}

TEST_F(Ged551SchrijverTest, VerwijzingenBuitenDeSelectieWordenGeteld) {
  const std::int16_t man = set.bouw.Man("", "X");
  const std::int16_t vrouw = set.bouw.Vrouw("", "Y");
  const std::int16_t kind = set.bouw.Man("", "Z");
  set.bouw.Plaats("Ongebruikt");
  const std::int16_t delft = set.bouw.Plaats("Delft");
  const std::int16_t gouda = set.bouw.Plaats("Gouda");
  set.bouw.WijzigPersoon(man, {{"GebPlaats", GetalTekst(delft)}});
  set.bouw.Relatie(man, vrouw, {kind}, {{"OtrPlaats", gouda}});
  set.bouw.Plaats("Ook ongebruikt");
  ExpSelectie selectie;
  ASSERT_TRUE(selectie.SelPersonen.Voeg(man));
  ASSERT_TRUE(selectie.SelRelaties.Voeg(2));
  const Ged551Uitvoer uitvoer = Exporteer551(set, selectie);
  EXPECT_EQ(uitvoer.Van("0 @F2@ FAM"), "1 HUSB @I2@\n1 MARB\n2 _LBPLTS @P4@\n2 PLAC Gouda\n");
  EXPECT_EQ(uitvoer.Van("0 @P4@ _LBPLTS"), "1 NAME Gouda\n");
  EXPECT_EQ(uitvoer.bestand.find("ngebruikt"), std::string::npos);
  EXPECT_EQ(uitvoer.log,
            "Soort bestand: GEDCOM 5.5.1, tekenset UTF-8\nTotaal 1 Personen geëxporteerd\n"
            "Totaal 1 Relaties geëxporteerd\nTotaal 2 Plaatsen geëxporteerd\n"
            "LET OP: verwijzing naar een record dat niet mee is uitgevoerd: 2 keer\n"
            "Exporteren voltooid\n"_w);
  for (const char* naam : {"1 NAME Ongebruikt\n", "1 NAME Ook ongebruikt\n"}) {
    EXPECT_NE(Exporteer551(set).bestand.find(naam), std::string::npos) << naam;
  }
}

TEST_F(Ged551SchrijverTest, EenVervolgrecordIsGeenPersoonEnGeenRelatie) {
  const std::int16_t man = set.bouw.Man("", "X");
  std::vector<std::int16_t> kinderen(16, set.bouw.Man("", "Z"));
  set.bouw.Relatie(man, 0, kinderen);
  for (int i = 0; i < 4; ++i) set.bouw.Relatie(man, 0);
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  EXPECT_NE(uitvoer.log.find("Totaal 2 Personen"), std::string::npos);
  EXPECT_NE(uitvoer.log.find("Totaal 5 Relaties"), std::string::npos);
  EXPECT_EQ(uitvoer.log.find("Leesfout"), std::string::npos);
  EXPECT_TRUE(uitvoer.Van("0 @I2@ INDI")
                  .ends_with("1 FAMS @F2@\n1 FAMS @F4@\n1 FAMS @F5@\n"
                             "1 FAMS @F6@\n1 FAMS @F7@\n"));
}

}  // namespace
}  // namespace lb77
