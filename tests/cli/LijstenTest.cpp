// `selectie` and `statistiek` as commands.
#include "cli/OpdrachtToets.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n"
    "0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1860\n2 PLAC Delft\n"
    "1 DEAT\n2 DATE 3 MAR 1920\n1 OCCU smid\n1 NOTE Woonde op de Markt.\n1 FAMS @F1@\n"
    "0 @I2@ INDI\n1 NAME Els /Vos/\n1 SEX F\n1 FAMS @F1@\n"
    "0 @I3@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 4 MAY 1890\n2 PLAC Breda\n"
    "1 FAMC @F1@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n1 MARR\n2 DATE 5 JUN 1888\n"
    "2 PLAC Delft\n0 TRLR\n";

class LijstenToets : public OpdrachtToets {
 protected:
  void SetUp() override { MaakFamilie(kGedcom); }
  int Lijst(std::string_view opdracht, std::string_view soort, std::vector<std::string> zet) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie", std::string(soort)};
    argumenten.zet = std::move(zet);
    return Doe(opdracht, argumenten);
  }
};

TEST_F(LijstenToets, SelectieVanPersonen) {
  EXPECT_EQ(Lijst("selectie", "personen", {"VanDatumGeb=1-1-1880", "ZoekVrouw=uit"}), 0) << fout_;
  EXPECT_EQ(uit_.rfind("P:    4 : Jan van Dam   ", 0), 0U) << uit_;
  EXPECT_NE(uit_.find("1890-    \n\n1 Personen gevonden.\n\n"), std::string::npos);
  EXPECT_EQ(fout_, "");
}

TEST_F(LijstenToets, SelectieVanRelaties) {
  EXPECT_EQ(Lijst("selectie", "relaties", {"AchterNm=vos"}), 0) << fout_;
  EXPECT_EQ(uit_, "R:    2   -  -     05-06-1888   -  -     P:2 x P:3\n\n1 Relaties gevonden.\n\n");
}

TEST_F(LijstenToets, SelectieVanPlaatsenNeemtDeEnigeDieZoBegint) {
  EXPECT_EQ(Lijst("selectie", "plaatsen", {"PltsNm=del", "ZoekGeb=uit"}), 0) << fout_;
  EXPECT_EQ(uit_, "R:    2 WHuw: 05-06-1888\n");
  EXPECT_EQ(fout_, "Gevonden: Delft (). Is deze Plaats bedoeld ? -> Ja\n");
}

// Delfshaven (2), Delft (3) and twice Breda (4, 5).
class PlaatsenToets : public LijstenToets {
 protected:
  void SetUp() override {
    MaakFamilie(
        "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n"
        "1 BIRT\n2 DATE 1 FEB 1860\n2 PLAC Delfshaven\n"
        "1 CHR\n2 DATE 2 FEB 1860\n2 PLAC Delft\n"
        "1 DEAT\n2 DATE 3 MAR 1920\n2 PLAC Breda\n"
        "1 BURI\n2 DATE 4 MAR 1920\n2 PLAC Breda, NB\n0 TRLR\n");
  }
  int Zoek(const std::string& naam) { return Lijst("selectie", "plaatsen", {"PltsNm=" + naam}); }
};

TEST_F(PlaatsenToets, EenHeleNaamGaatVoorEenBegin) {
  EXPECT_EQ(Zoek("DELFT"), 0) << fout_;
  EXPECT_EQ(uit_, "P:    2 Doop: 02-02-1860\n");
  EXPECT_EQ(fout_, "Gevonden: Delft (). Is deze Plaats bedoeld ? -> Ja\n");
}

TEST_F(PlaatsenToets, WatMeerPlaatsenKanZijnNoemtZe) {
  EXPECT_EQ(Zoek("delf"), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_EQ(fout_,
            "2 plaatsen beginnen met \"delf\"; geef een nummer:\n"
            "     2  Delfshaven ()\n     3  Delft ()\n");
}

TEST_F(PlaatsenToets, EenNummerIsDiePlaats) {
  EXPECT_EQ(Zoek("3"), 0) << fout_;
  EXPECT_EQ(uit_, "P:    2 Doop: 02-02-1860\n");
  EXPECT_EQ(Zoek("5"), 0) << fout_;
  EXPECT_EQ(uit_, "P:    2 Begr: 04-03-1920\n");
}

TEST_F(PlaatsenToets, EenNummerVanGeenPlaatsWordtGeweigerd) {
  for (const std::string nr : {"0", "1", "77", "10003", "99999"}) {
    EXPECT_EQ(Zoek(nr), 1);
    EXPECT_EQ(fout_, "Er is geen plaats met nummer " + nr + "\n");
  }
}

TEST_F(PlaatsenToets, EenNaamDieErNietIsBlijftAanHetScherm) {
  EXPECT_EQ(Zoek("Goes"), 1);
  EXPECT_EQ(fout_,
            "Plaatsnaam niet gevonden\nGeen plaats om naar te zoeken opgegeven\n"
            "Er is geen verslag gemaakt\n");
  EXPECT_EQ(Zoek(""), 1);
  EXPECT_EQ(fout_, "Geen plaats om naar te zoeken opgegeven\nEr is geen verslag gemaakt\n");
}

TEST_F(LijstenToets, SelectieVanOpmerkingen) {
  EXPECT_EQ(Lijst("selectie", "opmerkingen", {"ZoekTekst=Markt", "OptionCapsJa=aan"}), 0) << fout_;
  EXPECT_EQ(uit_, "P:    2 Woonde op de Markt.\n\n");
  EXPECT_EQ(Lijst("selectie", "opmerkingen", {"ZoekTekst=markt", "OptionCapsJa=aan"}), 0) << fout_;
  EXPECT_EQ(uit_, "\n");
}

TEST_F(LijstenToets, ZonderKeuzeIsErGeenLijst) {
  EXPECT_EQ(Lijst("selectie", "personen", {}), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_EQ(fout_, "Geen gegevens om naar te zoeken opgegeven\nEr is geen verslag gemaakt\n");
}

TEST_F(LijstenToets, EenOngeldigeDatumWordtGeweigerd) {
  EXPECT_EQ(Lijst("selectie", "personen", {"VanDatumGeb=1-13-1880"}), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_NE(fout_, "");
}

TEST_F(LijstenToets, StatistiekVanTakken) {
  EXPECT_EQ(Lijst("statistiek", "takken", {"PersNr=2"}), 0) << fout_;
  EXPECT_EQ(uit_,
            "Takkenverdeling van afstammelingen van Piet van Dam (P2)\n\n"
            "tak 1 (P4)  : 1 afstammeling\n\nTotaal 1 nazaat gevonden.\n\n");
}

TEST_F(LijstenToets, StatistiekVanFamilies) {
  EXPECT_EQ(Lijst("statistiek", "families", {}), 0) << fout_;
  EXPECT_EQ(uit_,
            "Verdeling familienamen\n\n2: van Dam\n1: Vos\n\nTotaal 2 namen aanwezig.\n"
            "Totaal 2 namen gevonden.\n\n");
  EXPECT_EQ(Lijst("statistiek", "families", {"MinimumAantal=2"}), 0) << fout_;
  EXPECT_NE(uit_.find("\nTotaal 1 naam gevonden.\n"), std::string::npos);
}

TEST_F(LijstenToets, StatistiekVanDeTijdbalk) {
  EXPECT_EQ(Lijst("statistiek", "tijdbalk", {"PersNr=2"}), 0) << fout_;
  EXPECT_EQ(uit_,
            "Populatiegrafiek van afstammelingen van Piet van Dam (P2)\n\n"
            "Periode : 1850-1899 : 2 (waarvan zeker 1)\n"
            "Periode : 1900-1949 : 1 (waarvan zeker 1)\n\nTotaal : 2 afstammelingen\n\n");
}

TEST_F(LijstenToets, WieErNietIsHeeftGeenTakken) {
  EXPECT_EQ(Lijst("statistiek", "takken", {"PersNr=77"}), 1);
  EXPECT_EQ(fout_, "Geen stamouder opgegeven\nEr is geen verslag gemaakt\n");
}

TEST_F(LijstenToets, EenSoortDieErNietIsNoemtDieErWelZijn) {
  EXPECT_EQ(Lijst("selectie", "takken", {}), 2);
  EXPECT_EQ(fout_, "takken is er niet; kies uit: personen, relaties, plaatsen, opmerkingen\n");
  EXPECT_EQ(Lijst("statistiek", "caf\xe9", {}), 2);
  EXPECT_EQ(fout_, "caf\xc3\xa9 is er niet; kies uit: takken, families, tijdbalk\n");
}

}  // namespace
}  // namespace lb77
