// The chain of forms of the ancestor chart, and its options.
#include <gtest/gtest.h>

#include "ancestors/KwstKeten.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class KwstSchKeten : public KwstKeten {
 protected:
  KwstSchKeten() { soort_ = &kKwstSchPrs; }

  // From the number of the proband to the viewer.
  [[nodiscard]] static Keten Weg() {
    return Keten({
        {"KwstSchPrs", "Nummer Proband", "vul RecordNr 9\ndruk OKButton"},
        {"KwstSchParam", "Schema Kwartierstaat Uitvoeropties", "druk OKButton"},
        {"KwHTMLParam", "Kwartierstaat Uitvoeropties voor Internet", "druk OKButton", false},
        {"KwstBereken", "Opbouwen Kwartierstaat", ""},
        {"KwstSchTemp", "Schema Kwartierstaat Schrijven", ""},
        {"ToonTekst", "Schema Kwartierstaat", "druk BackButton"},
    });
  }
  // The dialog of options alone.
  void InOpties(std::string_view doet, std::string_view verslag) {
    Speel(Weg()
              .In("KwstSchParam", std::string(doet) + "\ndruk BackButton", verslag)
              .Tot("KwstSchParam"));
  }
  void ZetIni(std::string_view sectie) {
    SchrijfBytes(Map() / "LIJNBOOM.INI", std::string(kIni) + std::string(sectie));
  }
};

TEST_F(KwstSchKeten, GaatVanNummerTotScherm) {
  Speel(Weg().In("ToonTekst", "toon XY_label\ndruk BackButton", R"(= XY_label "pagina 1,1")"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_EQ(Verslag(),
            "Kwartierstaat van Gerrit van Dam\r\n"
            "\r\n"
            "                /======== 8.\r\n"
            "        /=======+ 4. Adriaan van Dam\r\n"
            "        |       \\======== 9.\r\n"
            "/=======+ 2. Dirk van Dam\r\n"
            "|       |       /======== 10.\r\n"
            "|       \\=======+ 5. Barbara Blom\r\n"
            "|               \\======== 11.\r\n"
            "1. Gerrit van Dam\r\n"
            "|               /======== 12.\r\n"
            "|       /=======+ 6. Adriaan van Dam\r\n"
            "|       |       \\======== 13.\r\n"
            "\\=======+ 3. Femke van Dam\r\n"
            "        |       /======== 14. Klaas Cool\r\n"
            "        \\=======+ 7. Cornelia Cool\r\n"
            "                \\======== 15.\r\n"
            "\r\n"
            "          Copyright (2000) J. Jansen\r\n"
            "          Gemaakt met LB77 voor Windows\r\n");
}

TEST_F(KwstSchKeten, VeldenWordenGecontroleerdEnHersteld) {
  InOpties(R"(
      vul KwNrProband
      vul KwNrProband 1a
      vul KwNrProband 5
      vul MaxGen
      toon MaxGen
      vul MaxGen 1
      vul MaxGen 11
      toon MaxGen
      vul MaxGen 10
      vul BreedteGen
      toon BreedteGen
      vul BreedteGen 1
      vul BreedteGen 11
      toon BreedteGen
      vul BreedteGen 2
      toon BreedteGen
    )",
           R"~(
      ! uitroep "Het kwartiernummer van de proband is verplicht"
      ! uitroep "Onjuist kwartiernummer (geen getal)"
      ! uitroep "Het maximum aantal generaties is verplicht"
      = MaxGen "4"
      ! uitroep "Onjuist aantal generaties (2-10)"
      ! uitroep "Onjuist aantal generaties (2-10)"
      = MaxGen "4"
      ! uitroep "De breedte van een kolom voor een generaties is verplicht"
      = BreedteGen "6"
      ! uitroep "Onjuiste breedte voor een kolom (2-10)"
      ! uitroep "Onjuiste breedte voor een kolom (2-10)"
      = BreedteGen "6"
      = BreedteGen "2"
    )~");
}

TEST_F(KwstSchKeten, DeKeuzenGaanNaarHetSchema) {
  Speel(Weg().In("KwstSchParam", R"(
      vul KwNrProband 5
      vul MaxGen 2
      vul BreedteGen 3
      stel OokNrsBox Ja
      stel OokJaarBox Ja
      stel UitlijnBox Ja
      stel CopyrightBox Nee
      stel OokLB77Box Nee
      vul TitelTekst
      vul Inleiding2 Tweede regel
      druk OKButton
    )"));
  EXPECT_EQ(Verslag(),
            "Tweede regel\r\n"
            "\r\n"
            "/=== 10. Dirk van Dam [6] 1780-    \r\n"
            "      5. Gerrit van Dam [9] 1810-    \r\n"
            "\\=== 11. Femke van Dam [8]     -1850\r\n"
            "\r\n");
}

TEST_F(KwstSchKeten, DeKeuzenBlijvenInHunEigenSectie) {
  Speel(Weg().In("KwstSchParam", R"(
      vul MaxGen 3
      vul BreedteGen 5
      stel OokNrsBox Ja
      stel OokJaarBox Ja
      stel UitlijnBox Ja
      stel CopyrightBox Nee
      druk OKButton
    )"));
  EXPECT_NE(Ini().find("[KWGR]\r\nGeneraties=3\r\nOokNummers=J\r\nOokJaren=J\r\nUitlijnen=J\r\n"
                       "Breedte=5\r\nHTML=N\r\nOokCopyRt=N\r\nOokLB77=J\r\n"),
            std::string::npos);
  EXPECT_TRUE(IniHeeft("SoortUitv=1"));
  InOpties("toon MaxGen\ntoon BreedteGen\ntoon OokNrsBox\ntoon UitlijnBox\ntoon CopyrightBox", R"(
      = MaxGen "3"
      = BreedteGen "5"
      = OokNrsBox "Ja"
      #0 "Ja"
      #1 "Nee"
      = UitlijnBox "Ja"
      #0 "Ja"
      #1 "Nee"
      = CopyrightBox "Nee"
      #0 "Ja"
      #1 "Nee"
    )");
}

TEST_F(KwstSchKeten, ZonderOpslaanVeldenBlijftNiets) {
  std::string ini(kIni);
  ini.replace(ini.find("OpslaanVelden=J"), 15, "OpslaanVelden=N");
  SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
  Speel(Weg()
            .In("KwstSchParam", "vul MaxGen 3\nstel InHTMLBox Ja\ndruk OKButton")
            .In("KwHTMLParam", "vul EmailAdres jan@example.org\ndruk OKButton"));
  EXPECT_EQ(Ini(), ini);
}

// Fifty generations would ask for more places than any memory has.
TEST_F(KwstSchKeten, EenBewaardGetalBuitenDeGrenzenIsDeStandaard) {
  for (const std::string_view generaties : {"50", "1", "11", "-3", "x", ""}) {
    ZetIni("[KWGR]\r\nGeneraties=" + std::string(generaties) + "\r\nBreedte=99\r\n");
    InOpties("toon MaxGen\ntoon BreedteGen", "= MaxGen \"4\"\n= BreedteGen \"8\"");
  }
  ZetIni("[KWGR]\r\nGeneraties=10\r\nBreedte=2\r\n");
  InOpties("toon MaxGen\ntoon BreedteGen", "= MaxGen \"10\"\n= BreedteGen \"2\"");
}

TEST_F(KwstSchKeten, EenBewaardeWaardeDieGeenIsIsJaEnBijHTMLNee) {
  ZetIni(
      "[KWGR]\r\nOokNummers=x\r\nOokJaren=x\r\nUitlijnen=x\r\nHTML=x\r\nOokCopyRt=x\r\n"
      "OokLB77=x\r\n");
  Speel(Weg());
  EXPECT_NE(Ini().find("[KWGR]\r\nGeneraties=4\r\nOokNummers=J\r\nOokJaren=J\r\nUitlijnen=J\r\n"
                       "Breedte=8\r\nHTML=N\r\nOokCopyRt=J\r\nOokLB77=J\r\n"),
            std::string::npos)
      << Ini();
}

TEST_F(KwstSchKeten, InHTMLVraagtHijDeLinksEnBewaartZeBijDeKwartierstaat) {
  Speel(Weg()
            .In("KwstSchParam", "stel InHTMLBox Ja\ndruk OKButton")
            .In("KwHTMLParam", "vul EmailAdres jan@example.org\nvul HomePageURL\ndruk OKButton"));
  EXPECT_NE(Ini().find("[KWGR]\r\nGeneraties=4\r\nOokNummers=N\r\nOokJaren=N\r\nUitlijnen=N\r\n"
                       "Breedte=8\r\nHTML=J\r\n"),
            std::string::npos);
  EXPECT_TRUE(IniHeeft("OokEmail=J"));
  EXPECT_TRUE(IniHeeft("OokHomePage=N"));
  EXPECT_LT(Ini().find("OokEmail=J"), Ini().find("[KWGR]"));
  EXPECT_NE(Verslag().find("<PRE>\r\n                /======== 8."), std::string::npos);
  EXPECT_NE(Verslag().find("mailto:jan@example.org"), std::string::npos);
}

TEST_F(KwstSchKeten, ElkeWegTerugStoptDeKeten) {
  for (const std::string_view weg : {"druk BackButton", "toets Escape", "sluit"}) {
    for (const std::string_view vorm : {"KwstSchPrs", "KwstSchParam"}) {
      gebleven_ = 0;
      Speel(Weg().In(vorm, weg).Tot(vorm));
      EXPECT_EQ(gebleven_, -1) << weg;
    }
    gebleven_ = 0;
    Speel(Weg()
              .In("KwstSchParam", "stel InHTMLBox Ja\ndruk OKButton")
              .In("KwHTMLParam", weg)
              .Tot("KwHTMLParam"));
    EXPECT_EQ(gebleven_, -1) << weg;
  }
}

// The computation tests for it at the proband, the writing at each line.
TEST_F(KwstSchKeten, EenStopVanHetSchrijvenToontGeenSchema) {
  Speel(Weg()
            .In("KwstSchParam", "vul MaxGen 2\nonderbreek 3\nantwoord Ja\ndruk OKButton")
            .In("KwstSchTemp", "toon Personen\ntoon PersoonsNr\ndruk OKButton", R"(
                ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
                = Personen "2"
                = PersoonsNr "6"
              )")
            .Tot("KwstSchTemp"));
  EXPECT_EQ(gebleven_, -1);
  EXPECT_NE(Verslag().find("Dirk"), std::string::npos);
  EXPECT_EQ(Verslag().find("Gerrit van Dam\r\n\\"), std::string::npos);
}

TEST_F(KwstSchKeten, EenIngetrokkenStopToontHetSchema) {
  Speel(Weg()
            .In("KwstSchParam", "vul MaxGen 2\nonderbreek 3\nantwoord Nee\ndruk OKButton")
            .Zegt("KwstSchTemp", R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee)"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_NE(Verslag().find("Femke"), std::string::npos);
}

TEST_F(KwstSchKeten, EenTijdelijkBestandDatNietKanStoptDeKeten) {
  std::filesystem::create_directories(Map() / "TEMP" / "KWSTDATA.TMP");
  const std::string pad = (Map() / "TEMP" / "KWSTDATA.TMP").string();
  Speel(Weg()
            .Zegt("KwstSchTemp", "! stop \"Kan tijdelijk bestand " + pad + " niet openen\"")
            .Tot("KwstSchTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstSchKeten, EenProbandDieErNietIsEindigtInDeOpbouw) {
  Speel(
      Weg()
          .In("KwstSchPrs", "vul RecordNr 500\ndruk OKButton")
          .Zegt(
              "KwstBereken",
              R"(! stop "Persoonsrecord 500 kan niet worden gelezen. Er is geen verslag gemaakt.")")
          .Tot("KwstBereken"));
  EXPECT_EQ(gebleven_, -1);
}

// The last generation is not read by the computation of the table.
TEST_F(KwstSchKeten, WieNietTeLezenIsLaatZijnPlaatsMetLijnEnNummer) {
  const auto kind = Bouw().Man("Kind", "A");
  const auto relatie = Bouw().Relatie(0, 0, {kind});
  Bouw().WijzigRelatie(relatie, {{"ManNr", "900"}});
  Speel(Weg()
            .In("KwstSchPrs", "vul RecordNr " + GetalTekst(kind) + "\ndruk OKButton")
            .In("KwstSchParam", "vul MaxGen 2\ndruk OKButton"));
  EXPECT_NE(Verslag().find("/======== 2.\r\n1. Kind A\r\n"), std::string::npos);
}

TEST_F(KwstSchKeten, EenKringVanOudersKomtTotHetLaatsteVak) {
  const auto kind = Bouw().Man("Kring", "Loop");
  Bouw().Relatie(kind, 0, {kind});
  Speel(Weg()
            .In("KwstSchPrs", "vul RecordNr " + GetalTekst(kind) + "\ndruk OKButton")
            .In("KwstSchParam", "vul MaxGen 10\ndruk OKButton"));
  EXPECT_NE(Verslag().find(" 512. Kring Loop\r\n"), std::string::npos);
  EXPECT_NE(Verslag().find(" 1023.\r\n"), std::string::npos);
}

}  // namespace
}  // namespace lb77
