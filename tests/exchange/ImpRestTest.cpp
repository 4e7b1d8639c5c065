// What was not stored stands in the rest file, and nothing that was.
#include <gtest/gtest.h>

#include "app/Start.h"
#include "exchange/ImpGedcom.h"
#include "exchange/ImportToets.h"
#include "steun/VolleSchijf.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class ImpRestTest : public ImportToets {
 protected:
  // The rest of an import of these lines, without its first two lines and its last.
  std::string RestVan(std::string_view regels, std::string_view gemeld = "") {
    Importeer(Ged(regels), gemeld);
    return Kern();
  }
  [[nodiscard]] std::string Kern() const {
    std::string rest = Rest();
    if (rest.empty()) return rest;
    constexpr std::string_view kKop = "0 HEAD\n1 CHAR UTF-8\n";
    constexpr std::string_view kSlot = "0 TRLR\n";
    EXPECT_TRUE(rest.starts_with(kKop)) << rest;
    EXPECT_TRUE(rest.ends_with(kSlot)) << rest;
    return rest.substr(kKop.size(), rest.size() - kKop.size() - kSlot.size());
  }
  [[nodiscard]] std::filesystem::path RestPad() const { return TekstMap() / "GEDCOM.RST"; }
  [[nodiscard]] std::filesystem::path BezigPad() const { return TekstMap() / "GEDCOM.RS~"; }
};

TEST_F(ImpRestTest, WatHeelIsOpgeslagenStaatErNietIn) {
  EXPECT_EQ(RestVan(R"(
      0 @I1@ INDI
      1 NAME Jan /van Dam/
      2 GIVN Jan
      2 SPFX van
      2 SURN van Dam
      1 SEX M
      1 BIRT
      2 DATE ABT 3 MAY 1850
      2 PLAC Delft
      2 NOTE kort
      3 CONT en goed
      1 CHR
      2 DATE 4 MAY 1850
      2 RELI Rooms Katholiek
      1 ADDR Markt 1
      2 CONT Delft
      1 ADOP
      2 DATE 1860
      1 EVEN
      2 PLAC Delft
      1 OCCU smid
      1 SOUR @S1@
      1 FAMS @F1@
      0 @F1@ FAM
      1 HUSB @I1@
      1 CHIL @I1@
      1 DIV
      1 MARR
      2 DATE 1875
      2 TYPE burgerlijk
      0 @I2@ INDI
      1 NAME Piet /Bos/
      1 OCCU bakker
      1 RELI RK
      0 @F2@ FAM
      1 HUSB @I2@
    )"),
            "");
  EXPECT_FALSE(std::filesystem::exists(RestPad()));
  EXPECT_FALSE(std::filesystem::exists(BezigPad()));
  EXPECT_EQ(Log(),
            "P-I1 - Onbekende tag: INDI-ADOP-DATE : 1860\r\n"
            "P-I1 - Onbekende tag: INDI-EVEN-PLAC : Delft\r\nImporteren voltooid\r\n");
}

TEST_F(ImpRestTest, EenRegelStaatOnderWatErbovenStaatMetHetNieuweNummer) {
  EXPECT_EQ(
      RestVan(R"(
      0 @I1@ INDI
      1 NAME Jan /Dam/
      0 @I2@ INDI
      1 NAME Piet /Dam/
      1 BIRT
      2 PLAC Delft
      3 MAP
      4 LATI N52
      4 LONG E4
      1 XYZ iets
      0 @F1@ FAM
      1 HUSB @I1@
      1 WIFE @I9@
    )"),
      "0 @I2@ INDI\n1 REFN 3\n1 BIRT\n2 PLAC Delft\n3 MAP\n4 LATI N52\n4 LONG E4\n1 XYZ iets\n"
      "0 @F1@ FAM\n1 REFN 2\n1 WIFE @I9@\n");
  EXPECT_NE(
      Log().find("LET OP: wat niet of niet heel is overgenomen staat in GEDCOM.RST: 5 regels"),
      std::string::npos);
}

TEST_F(ImpRestTest, AfgekapteEnOnbekendeWaardenVanEenPersoon) {
  EXPECT_EQ(RestVan(R"(
      0 @I1@ INDI
      1 NAME 1234567890123456789012345678901 /Dam/
      1 OCCU 1234567890123456789012345678901
      1 SEX X
      1 BIRT Y
      2 DATE 3/12/1950
      2 PLAC 12345678901234567890123456
      1 CHR
      2 DATE ABT 1851
      2 RELI Onbekend
      1 DEAT
      2 DATE 1890/91
      2 PLAC verm. Delft
      1 BURI
      2 PLAC Delft ?
      1 CHAN
      2 DATE 1 JAN 2000
    )"),
            "0 @I1@ INDI\n1 REFN 2\n1 NAME 1234567890123456789012345678901 /Dam/\n"
            "1 OCCU 1234567890123456789012345678901\n1 SEX X\n1 BIRT Y\n2 DATE 3/12/1950\n"
            "2 PLAC 12345678901234567890123456\n1 CHR\n2 DATE ABT 1851\n2 RELI Onbekend\n"
            "1 DEAT\n2 DATE 1890/91\n2 PLAC verm. Delft\n1 BURI\n2 PLAC Delft ?\n"
            "1 CHAN\n2 DATE 1 JAN 2000\n");
}

TEST_F(ImpRestTest, WatEenLatereRegelVervangtStaatErInEnDieLatereNiet) {
  EXPECT_EQ(RestVan(R"(
      0 @I1@ INDI
      1 NAME Jan /van Dam/
      2 SPFX van
      2 SURN Dam
      1 NAME Jan /Dam/
      1 OCCU smid
      1 OCCU smid
      1 OCCU bakker
      1 BIRT
      2 DATE 1850
      1 BIRT
      2 DATE ABT 1850
      1 DEAT
      2 DATE BET 1890 AND 1895
      1 BURI
      2 DATE 1895
      2 PLAC Delft
      1 CHR
      2 DATE 1850
      1 FAMC @F1@
      1 FAMC @F2@
      0 @F1@ FAM
      1 HUSB @I1@
      1 HUSB @I2@
      1 MARC
      2 DATE 1870
      1 MARR
      2 DATE 1870
      0 @F2@ FAM
      1 DIV N
      0 @I2@ INDI
    )"),
            "0 @I1@ INDI\n1 REFN 2\n1 NAME Jan /van Dam/\n2 SPFX van\n1 OCCU smid\n1 OCCU smid\n"
            "1 BIRT\n2 DATE 1850\n1 FAMC @F1@\n"
            "0 @F1@ FAM\n1 REFN 2\n1 HUSB @I1@\n1 MARC\n2 DATE 1870\n"
            "0 @F2@ FAM\n1 REFN 3\n1 DIV N\n");
}

TEST_F(ImpRestTest, EenPeriodeDieDeDoopVerdringtEnAndersom) {
  EXPECT_EQ(
      RestVan(R"(
      0 @I1@ INDI
      1 BIRT
      2 DATE BET 1850 AND 1851
      1 CHR
      2 DATE 1852
      0 @I2@ INDI
      1 CHR
      2 DATE 1852
      1 BIRT
      2 DATE BET 1850 AND 1851
      1 CHR
      2 PLAC Delft
      1 DEAT
      2 DATE BET 1890 AND 1891
      1 BURI
      2 PLAC Delft
    )"),
      "0 @I1@ INDI\n1 REFN 2\n1 BIRT\n2 DATE BET 1850 AND 1851\n"
      "0 @I2@ INDI\n1 REFN 3\n1 CHR\n2 DATE 1852\n1 CHR\n2 PLAC Delft\n1 BURI\n2 PLAC Delft\n");
}

TEST_F(ImpRestTest, DeBepalingVanEenDatumBijEenRelatieGaatVerloren) {
  EXPECT_EQ(RestVan(R"(
      0 @F1@ FAM
      1 MARB
      2 DATE AFT 1869
      1 MARR
      2 DATE ABT 1870
      2 AGNC kerk
      1 MARR Y
    )"),
            "0 @F1@ FAM\n1 REFN 2\n1 MARB\n2 DATE AFT 1869\n1 MARR\n2 DATE ABT 1870\n2 AGNC kerk\n"
            "1 MARR Y\n");
}

TEST_F(ImpRestTest, VerwijzingenBovenHetMaximum) {
  std::string persoon = "0 @I1@ INDI\n";
  std::string relatie = "0 @F1@ FAM\n";
  for (int i = 1; i <= 7; ++i) persoon += "1 FAMS @F1@\n";
  for (int i = 1; i <= 31; ++i) relatie += "1 CHIL @I1@\n";
  EXPECT_EQ(RestVan(persoon + relatie,
                    "! uitroep \"Meer dan 5 relaties voor Persoon 2\"\n"
                    "! uitroep \"Meer dan 29 kinderen voor Relatie 2\""),
            "0 @I1@ INDI\n1 REFN 2\n1 FAMS @F1@\n1 FAMS @F1@\n"
            "0 @F1@ FAM\n1 REFN 2\n1 CHIL @I1@\n1 CHIL @I1@\n");
}

TEST_F(ImpRestTest, VanEenOpmerkingDieNietHeelPastStaanAlleRegelsErin) {
  const std::string regel(80, 'x');
  std::string lang = "1 NOTE begin\n";
  for (int i = 0; i < 10; ++i) lang += "2 CONT " + regel + "\n";
  lang += "2 CONC " + std::string(5, 'y') + "\n";
  EXPECT_EQ(RestVan("0 @I1@ INDI\n1 NOTE kort\n" + lang + "2 SOUR @S1@\n3 PAGE 5\n1 NOTE kort\n"),
            "0 @I1@ INDI\n1 REFN 2\n" + lang + "2 SOUR @S1@\n3 PAGE 5\n");
}

TEST_F(ImpRestTest, NotenEnRegelsVanAndereRecordsHebbenGeenNummer) {
  EXPECT_EQ(RestVan(R"(
      0 @N1@ NOTE een tekst
      1 CONT en meer
      0 @S1@ SOUR
      1 TITL Doopboek
      1 AUTH
      1 NOTE van een bron
      2 CONT meer
      0 @O1@ OBJE
      1 FILE x.jpg
      0 @O2@ OBJE
    )"),
            "0 @N1@ NOTE een tekst\n1 CONT en meer\n0 @S1@ SOUR\n1 TITL Doopboek\n"
            "1 NOTE van een bron\n2 CONT meer\n0 @O1@ OBJE\n1 FILE x.jpg\n");
}

TEST_F(ImpRestTest, WatVanHetBestandZelfVerteltMaaktGeenRestMaarStaatErWelIn) {
  const std::string kop =
      "0 HEAD\n1 SOUR ANDER\n2 VERS 1\n1 CHAR WIN\n2 VERS 2\n1 DATE 1 JAN 2000\n0 @M1@ SUBM\n1 "
      "NAME Jan\n0 @N1@ SUBN\n1 FAMF Vos\n";
  Importeer(kop + "0 @I1@ INDI\n1 NAME Jan //\n0 TRLR\n");
  EXPECT_EQ(Rest(), "");
  EXPECT_FALSE(std::filesystem::exists(BezigPad()));
  Importeer(kop + "0 @I1@ INDI\n1 XYZ iets\n0 TRLR\n");
  EXPECT_EQ(Kern(),
            "1 SOUR ANDER\n2 VERS 1\n1 CHAR UTF-8\n2 VERS 2\n1 DATE 1 JAN 2000\n0 @M1@ SUBM\n"
            "1 NAME Jan\n0 @N1@ SUBN\n1 FAMF Vos\n0 @I1@ INDI\n1 REFN 3\n1 XYZ iets\n");
  EXPECT_NE(Log().find("GEDCOM.RST: 1 regel\r\n"), std::string::npos);
}

TEST_F(ImpRestTest, AlleenDeTekensetVanDeKopIsDieVanHetBestand) {
  EXPECT_EQ(RestVan("0 @I1@ INDI\n1 CHAR kalm"), "0 @I1@ INDI\n1 REFN 2\n1 CHAR kalm\n");
  Importeer("0 HEAD\n1 SOUR ANDER\n2 CHAR WIN\n0 @I1@ INDI\n1 XYZ iets\n0 TRLR\n");
  EXPECT_NE(Rest().find("\n2 CHAR WIN\n"), std::string::npos) << Rest();
}

TEST_F(ImpRestTest, EenNieuweImportZonderRestHaaltDeOudeWeg) {
  EXPECT_NE(RestVan("0 @I1@ INDI\n1 XYZ iets"), "");
  EXPECT_EQ(RestVan("0 @I1@ INDI\n1 NAME Jan //"), "");
  EXPECT_FALSE(std::filesystem::exists(RestPad()));
}

TEST_F(ImpRestTest, ZonderTrlrStaatHetLaatsteRecordErHelemaalIn) {
  Importeer("0 HEAD\n0 @I1@ INDI\n1 NAME Jan //\n1 NOTE bewaard\n1 BIRT\n2 DATE 1850\n1 NOTE weg");
  EXPECT_EQ(Kern(), "0 @I1@ INDI\n1 REFN 2\n1 NAME Jan //\n1 BIRT\n2 DATE 1850\n1 NOTE weg\n");
  EXPECT_EQ(OpmBijPersoon(2), "4096 bewaard\n");
}

TEST_F(ImpRestTest, WatAchterTrlrStaat) {
  Importeer(Ged("0 @I1@ INDI") +
            "1 NAME los\n\n0 @I9@ INDI\n1 NAME Piet //\n0 TRLR\nzomaar\n0 HEAD\n");
  EXPECT_EQ(Kern(),
            "0 NOTE achter TRLR\n1 NAME los\n0 @I9@ INDI\n1 NAME Piet //\n"
            "0 NOTE achter TRLR\n1 NOTE 0 TRLR\n0 NOTE achter TRLR\n1 NOTE zomaar\n"
            "0 NOTE achter TRLR\n1 NOTE 0 HEAD\n");
}

TEST_F(ImpRestTest, DeTekstIsUtf8UitElkeTekenset) {
  Importeer(GedIn("CP437", "0 @I1@ INDI\n1 XYZ Andr\x82"));
  EXPECT_EQ(Kern(), "0 @I1@ INDI\n1 REFN 2\n1 XYZ André\n");
  Importeer(Ged("0 @I1@ INDI\n1 XYZ Andr\xE9"));
  EXPECT_EQ(Kern(), "0 @I1@ INDI\n1 REFN 3\n1 XYZ André\n");
  Antwoord("Ja");
  Importeer(
      Ged("0 @I1@ INDI\n1 XYZ André 中\n1 NAME 中 //\n1 NOTE 中\n2 CONT é\n1 NOTE é\n1 NOTE a\n2 "
          "CONC 中"));
  EXPECT_EQ(Kern(),
            "0 @I1@ INDI\n1 REFN 4\n1 XYZ André 中\n1 NAME 中 //\n1 NOTE 中\n2 CONT é\n1 NOTE a\n2 "
            "CONC 中\n");
}

TEST_F(ImpRestTest, EenOvergeslagenNiveauHeeftGeenRegelVanDeVorigeBovenZich) {
  EXPECT_EQ(RestVan("0 @I1@ INDI\n1 BIRT\n2 DATE 1 JAN 1900\n1 DEAT\n3 FOO bar"),
            "0 @I1@ INDI\n1 REFN 2\n1 DEAT\n3 FOO bar\n");
}

// The stored text has two characters for an accent that it does not know.
TEST_F(ImpRestTest, EenTekstDieInHetRecordLangerWordt) {
  const auto vol = [](std::size_t lengte) { return std::string(lengte - 2, 'x') + "\xC1y"; };
  const auto utf8 = [](std::size_t lengte) { return std::string(lengte - 2, 'x') + "Áy"; };
  EXPECT_EQ(RestVan("0 @I1@ INDI\n1 NAME " + vol(30) + " /" + vol(24) + "/\n1 OCCU " + vol(29) +
                    "\n1 BIRT\n2 PLAC " + vol(24) + "\n0 @I2@ INDI\n1 NAME Jan /" + vol(25) +
                    "/\n2 GIVN " + vol(29) + "\n1 OCCU " + vol(30) + "\n1 BIRT\n2 PLAC " + vol(25) +
                    "\n1 NOTE " + vol(79) + "\n1 NOTE " + vol(80) +
                    "\n0 @I3@ INDI\n1 NAME /Dam/\n2 GIVN " + vol(30) +
                    "\n0 @I4@ INDI\n1 NAME Jan /" + vol(25) + "/"),
            "0 @I1@ INDI\n1 REFN 2\n1 NAME " + utf8(30) + " /" + utf8(24) +
                "/\n0 @I2@ INDI\n1 REFN 3\n1 NAME Jan /" + utf8(25) + "/\n1 OCCU " + utf8(30) +
                "\n1 BIRT\n2 PLAC " + utf8(25) + "\n1 NOTE " + utf8(80) +
                "\n0 @I3@ INDI\n1 REFN 4\n1 NAME /Dam/\n2 GIVN " + utf8(30) +
                "\n0 @I4@ INDI\n1 REFN 5\n1 NAME Jan /" + utf8(25) + "/\n");
}

TEST_F(ImpRestTest, EenAdoptieInEenPeriodeEnEenSchema) {
  EXPECT_EQ(RestVan(R"(
      0 @M1@ SUBM
      1 SCHEMA
      2 INDI
      0 @I1@ INDI
      1 ADOP Y
      2 DATE BET 1850 AND 1851
      1 ADOP
      2 DATE 1850/51
    )"),
            "0 @M1@ SUBM\n1 SCHEMA\n2 INDI\n0 @I1@ INDI\n1 REFN 2\n1 ADOP Y\n"
            "2 DATE BET 1850 AND 1851\n1 ADOP\n2 DATE 1850/51\n");
}

TEST_F(ImpRestTest, DeRestZelfKanNietWordenIngelezen) {
  for (const auto& pad : {RestPad(), BezigPad()}) {
    SchrijfBytes(pad, Ged("0 @I1@ INDI"));
    const Taak taak = [](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      ImpGedcom form(hoofd);
      hoofd.gesprek.ToonModaal(form);
    };
    Verwacht(
        "vul Bestandsnaam " + pad.string() + "\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        taak, R"(
        + ImpGedcom "Importeer Gegevens - Gedcom"
        ! stop "Leesfout: Bestand is in gebruik"
        + ToonTekst "Importeren - Resultaat"
        - ToonTekst
        - ImpGedcom
      )");
    EXPECT_EQ(LeesBytes(pad), Ged("0 @I1@ INDI"));
  }
  EXPECT_EQ(Aantallen(), "1 1 1 1");
}

TEST_F(ImpRestTest, EenRestDieNietTeSchrijvenIsSchaadtDeImportNiet) {
  std::filesystem::create_directories(BezigPad());
  Importeer(Ged("0 @I1@ INDI\n1 NAME Jan //\n1 XYZ iets"),
            "! stop \"Fout bij het schrijven van GEDCOM.RST\\nPad is een directory\"");
  EXPECT_EQ(Persoon(2), "voor Jan");
  EXPECT_EQ(Log(),
            "P-I1 - Onbekende tag: INDI-XYZ : iets\r\n"
            "LET OP: GEDCOM.RST is niet geschreven: Pad is een directory\r\n"
            "Importeren voltooid\r\n");
}

TEST_F(ImpRestTest, EenMapMetDeNaamVanDeRestBlijftStaan) {
  std::filesystem::create_directories(RestPad());
  Importeer(Ged("0 @I1@ INDI\n1 XYZ iets"),
            "! stop \"Fout bij het schrijven van GEDCOM.RST\\nPad is een directory\"");
  EXPECT_TRUE(std::filesystem::is_directory(RestPad()));
  EXPECT_FALSE(std::filesystem::exists(BezigPad()));
}

TEST_F(ImpRestTest, EenVolleSchijfLaatGeenHalveRestAchter) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  // in UTF-8 the lines take twice the room
  std::string regels = "0 @I1@ INDI\n1 NAME Jan //\n";
  for (int i = 0; i < 200; ++i) regels += "1 _EIGEN " + std::string(200, '\x82') + "\n";
  const std::string bytes = GedIn("IBMPC", regels);
  {
    const VolleSchijf vol(bytes.size() + 1000);
    Importeer(bytes, "! stop \"Fout bij het schrijven van GEDCOM.RST\\nBestand te groot\"");
  }
  EXPECT_EQ(Rest(), "");
  EXPECT_FALSE(std::filesystem::exists(BezigPad()));
  EXPECT_EQ(Persoon(2), "voor Jan");
  Importeer(bytes);
  EXPECT_GT(Rest().size(), bytes.size() + 1000);
}

}  // namespace
}  // namespace lb77
