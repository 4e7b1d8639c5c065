#include "OpdrachtToets.h"
#include "steun/Bestandsstelsel.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1900\n"
    "2 PLAC K\xE8oln\n1 FAMC @F1@\n0 @I2@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 FAMS @F1@\n"
    "0 @F1@ FAM\n1 HUSB @I2@\n1 CHIL @I1@\n1 XYZ iets\n0 TRLR\n";

class OpdrachtenToets : public OpdrachtToets {
 protected:
  void MaakFamilie() { OpdrachtToets::MaakFamilie(kGedcom); }
};

TEST_F(OpdrachtenToets, EenNieuweSetStaatInDeLijst) {
  EXPECT_EQ(Doe("nieuw", {"familie", "Mijn familie"}), 0);
  EXPECT_NE(fout_.find("Druk op OK om een nieuw IniBestand te maken"), std::string::npos);
  EXPECT_NE(fout_.find("-> OK"), std::string::npos);
  EXPECT_EQ(Doe("sets", OpdrachtArgumenten{}), 0);
  EXPECT_EQ(uit_, "FAMILIE   Mijn familie  0 personen, 0 relaties\n");
}

TEST_F(OpdrachtenToets, EenSetDieErIsWordtNietNogEensGemaakt) {
  ASSERT_EQ(Doe("nieuw", {"familie"}), 0);
  EXPECT_EQ(Doe("nieuw", {"Familie"}), 1);
  EXPECT_NE(fout_.find("Deze bestandenset bestaat al"), std::string::npos);
  EXPECT_NE(fout_.find("De bestandenset is niet gemaakt"), std::string::npos);
}

TEST_F(OpdrachtenToets, EenTeLangeNaamWordtGeweigerdEnNietAfgekapt) {
  EXPECT_EQ(Doe("nieuw", {"familieboom"}), 1);
  EXPECT_NE(fout_.find("hoogstens 8 tekens"), std::string::npos);
}

TEST_F(OpdrachtenToets, InlezenDruktHetVerslagAf) {
  MaakFamilie();
  EXPECT_EQ(uit_,
            "R-F1 - Onbekende tag: FAM-XYZ : iets\n"
            "LET OP: wat niet of niet heel is overgenomen staat in GEDCOM.RST: 1 regel\n"
            "Importeren voltooid\n");
  EXPECT_EQ(fout_, "Importeren voltooid\n");
  EXPECT_EQ(Doe("sets", OpdrachtArgumenten{}), 0);
  EXPECT_EQ(uit_, "FAMILIE   Mijn familie  2 personen, 1 relaties\n");
}

TEST_F(OpdrachtenToets, SetsNoemtOokEenSetDieNietOpenGaat) {
  ASSERT_EQ(Doe("nieuw", {"een", "Eerste"}), 0);
  ASSERT_EQ(Doe("nieuw", {"twee"}), 0);
  ASSERT_EQ(Doe("nieuw", {"drie"}), 0);
  std::filesystem::remove(map_ / "DATA" / "DRIE" / "DRIE.PRS");
  EXPECT_EQ(Doe("sets", OpdrachtArgumenten{}), 0);
  EXPECT_EQ(uit_,
            "EEN       Eerste  0 personen, 0 relaties\nTWEE      0 personen, 0 relaties\n"
            "DRIE      niet te openen\n");
  EXPECT_FALSE(std::filesystem::exists(map_ / "DATA" / "DRIE" / "DRIE.PRS"));
}

TEST_F(OpdrachtenToets, EenBestandDatErNietIsWordtGemeldZonderEenAnderVerslag) {
  MaakFamilie();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.bestand = map_ / "weg.ged";
  EXPECT_EQ(Doe("importeer", argumenten), 1);
  EXPECT_NE(fout_.find("Bestand niet gevonden\nHet bestand is niet ingelezen\n"),
            std::string::npos);
  EXPECT_EQ(uit_, "");
}

TEST_F(OpdrachtenToets, EenBestandDatGeenGedcomIsEindigtMetEenEnZijnVerslag) {
  MaakFamilie();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.bestand = map_ / "brief.txt";
  SchrijfBytes(argumenten.bestand, "Beste Jan,\n");
  EXPECT_EQ(Doe("importeer", argumenten), 1);
  EXPECT_NE(fout_.find("Het bestand is niet ingelezen\n"), std::string::npos);
  EXPECT_EQ(uit_,
            "LET OP: gestopt bij regel 1: Fout: Header van GEDCOM-bestand niet gevonden\n"
            "Importeren voltooid\n");
}

TEST_F(OpdrachtenToets, HetVerslagIsUtf8MetGewoneRegeleinden) {
  MaakFamilie();
  EXPECT_EQ(Doe("kwartierstaat", {"familie", "2"}), 0) << fout_;
  EXPECT_EQ(uit_,
            "Generatie I\n\n     1  Jan van Dam, geb. K\xC3\xB6ln 1-2-1900.\n\n\nGeneratie II\n\n"
            "     2  Piet van Dam.\n\n\n          Copyright (2026)\n"
            "          Gemaakt met LB77 voor Windows\n\n");
}

TEST_F(OpdrachtenToets, EenBestandKrijgtDeBytesVanHetProgramma) {
  MaakFamilie();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "2"};
  argumenten.naar = map_ / "uit.txt";
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 0) << fout_;
  EXPECT_EQ(uit_, "");
  EXPECT_NE(LeesBytes(map_ / "uit.txt").find("geb. K\xF6ln 1-2-1900.\r\n"), std::string::npos);
}

TEST_F(OpdrachtenToets, EenBestandWordtAlleenDoorEenHeelVerslagVervangen) {
  MaakFamilie();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "2"};
  argumenten.naar = map_ / "geen map" / "uit.txt";
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 1);
  EXPECT_NE(fout_.find("Fout bij het schrijven van "), std::string::npos);
}

TEST_F(OpdrachtenToets, EenApparaatWordtBeschrevenEnBlijft) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  MaakFamilie();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "2"};
  argumenten.naar = "/dev/null";
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 0) << fout_;
  argumenten.naar = "/dev/full";
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 1);
  EXPECT_NE(fout_.find("Fout bij het schrijven van /dev/full"), std::string::npos);
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST_F(OpdrachtenToets, NaarHetGroteNietsBlijftErNietsOver) {
  MaakFamilie();
  const auto voor = Inhoud();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "2"};
  argumenten.naar = kGroteNiets;
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 0) << fout_;
  EXPECT_EQ(Inhoud(), voor);
}

TEST_F(OpdrachtenToets, EenPadMetAccentenIsEenPadAlsElkAnder) {
  MaakFamilie();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.bestand = map_ / std::filesystem::path(u8"stamboom \u00E9\u4E2D.ged");
  SchrijfBytes(argumenten.bestand, kGedcom);
  EXPECT_EQ(Doe("importeer", argumenten), 0) << fout_;
  argumenten.woorden = {"familie", "2"};
  argumenten.naar = map_ / std::filesystem::path(u8"uit \u00E9\u4E2D.txt");
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 0) << fout_;
  EXPECT_TRUE(std::filesystem::exists(*argumenten.naar));
}

TEST_F(OpdrachtenToets, EenVerslagInHTMLGaatLangsDeKoppelingen) {
  MaakFamilie();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "2"};
  argumenten.html = true;
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 0) << fout_;
  EXPECT_EQ(uit_.rfind("<HTML>\n", 0), 0U);
  EXPECT_NE(uit_.find("geb. K&ouml;ln"), std::string::npos);
  // The samples of that dialog are for who sees it.
  EXPECT_EQ(uit_.find("example.org"), std::string::npos);
  EXPECT_EQ(LeesBytes(map_ / "LIJNBOOM.INI").find("example.org"), std::string::npos);
}

TEST_F(OpdrachtenToets, ZetVultVeldenEnKeuzesVanHetKeuzevenster) {
  MaakFamilie();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "2"};
  argumenten.zet = {"KwNrProband=5", "VanafKwartier=5", "CopyrightBox=Nee", "OokNrsBox=Ja"};
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 0) << fout_;
  EXPECT_EQ(uit_.rfind("Generatie III\n\n     5  Jan van Dam [2], ", 0), 0U);
  EXPECT_EQ(uit_.find("Copyright"), std::string::npos);
}

TEST_F(OpdrachtenToets, EenVerkeerdeZetGeeftGeenVerslag) {
  MaakFamilie();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "2"};
  const std::pair<std::string, std::string> gevallen[] = {
      {"Onbekend=1", "Kwartierstaat Uitvoeropties: Onbekend bestaat niet\n"},
      {"OokNrsBox=Misschien",
       "Kwartierstaat Uitvoeropties: Ook Persoons- en Relatienummers uitvoeren heeft geen rij "
       "\"Misschien\"\n"}};
  for (const auto& [zet, melding] : gevallen) {
    argumenten.zet = {zet};
    EXPECT_EQ(Doe("kwartierstaat", argumenten), 1) << zet;
    EXPECT_EQ(uit_, "") << zet;
    EXPECT_NE(fout_.find(melding), std::string::npos) << fout_;
  }
}

TEST_F(OpdrachtenToets, EenPersoonDieErNietIsGeeftGeenVerslag) {
  MaakFamilie();
  EXPECT_EQ(Doe("kwartierstaat", {"familie", "77"}), 1);
  EXPECT_EQ(fout_, "Persoonsrecord 77 kan niet worden gelezen. Er is geen verslag gemaakt.\n");
}

TEST_F(OpdrachtenToets, WatEenVeldLaatVallenWordtGeweigerd) {
  MaakFamilie();
  for (const std::string nr : {"200000", "-2"}) {
    EXPECT_EQ(Doe("kwartierstaat", {"familie", nr}), 1) << nr;
    EXPECT_EQ(uit_, "") << nr;
    EXPECT_NE(fout_.find("Nummer Proband: Persoonsnummer neemt \"" + nr + "\" niet aan"),
              std::string::npos);
  }
  EXPECT_EQ(Doe("nieuw", {"lang", std::string(51, 'x')}), 1);
  EXPECT_NE(fout_.find(" neemt \"xxx"), std::string::npos);
  EXPECT_EQ(Doe("zoek", {"lang", "x"}), 1);
}

TEST_F(OpdrachtenToets, EenOnbekendeSetWordtGemeld) {
  MaakFamilie();
  EXPECT_EQ(Doe("kwartierstaat", {"weg", "2"}), 1);
  EXPECT_NE(fout_.find("Bestandenset WEG staat niet in de lijst"), std::string::npos);
}

}  // namespace
}  // namespace lb77
