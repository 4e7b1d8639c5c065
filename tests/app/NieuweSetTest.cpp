#include "app/NieuweSet.h"
#include "app/SessieToets.h"
#include "app/ZonderRechten.h"
#include "steun/Bestandsstelsel.h"
#include "steun/FaalBestand.h"

namespace lb77 {
namespace {

class NieuweSetVenster : public SessieToets {
 protected:
  void SetUp() override { ZetIni(""); }
  // Plays in NieuweSet; the transcript without the lines of both windows around it.
  void Speelt(std::string_view script, std::string_view verslag) {
    Verwacht("kies MaakSet\n" + std::string(script) + "\ntoon Statusbalk\nsluit", Sessie(),
             "+ MenuWindow \"LB77 voor Windows\"\n+ NieuweSet \"Nieuwe Bestandenset\"\n" +
                 MetMap(verslag) + "\n- MenuWindow");
  }
};

TEST_F(NieuweSetVenster, HetVensterVraagtNaamEnOmschrijving) {
  Speelt("toon\ndruk BackButton",
         R"(: NieuweSet "Nieuwe Bestandenset"
            = SetNaam ""
            = SetOmsch ""
            = OKButton "&OK"
            = BackButton "&Terug"
            * SetNaam
            - NieuweSet
            = Statusbalk "Actieve Bestandenset:")");
}

TEST_F(NieuweSetVenster, EenNieuweSetKrijgtDirectoryBestandenEnRegel) {
  Speelt("vul SetNaam royal\nvul SetOmsch \"  Vorsten  \"\ndruk OKButton",
         R"(- NieuweSet
            = Statusbalk "Actieve bestandenset: ROYAL,Vorsten")");
  EXPECT_EQ(Inhoud("DATA/ROYAL/ROYAL.PRS").size(), 128U);
  EXPECT_EQ(Inhoud("DATA/ROYAL/ROYAL.RLT").size(), 64U);
  EXPECT_EQ(Inhoud("DATA/ROYAL/ROYAL.OPM").size(), 96U);
  EXPECT_EQ(Inhoud("DATA/ROYAL/ROYAL.PLT").size(), 27U);
  EXPECT_EQ(Inhoud("DATA/ROYAL/ROYAL.PRS").substr(0, 22),
            "Pers.bestand Lijnboom" + std::string(1, '\0'));
  EXPECT_TRUE(Bestaat("DATA/ROYAL/TEKST"));
  EXPECT_FALSE(Bestaat("DATA/ROYAL/INDEX"));
  EXPECT_TRUE(IniHeeft("Set1=ROYAL,Vorsten"));
  EXPECT_TRUE(IniHeeft("Set=ROYAL"));
  EXPECT_TRUE(IniHeeft("SetOms=Vorsten"));
}

TEST_F(NieuweSetVenster, ZonderOmschrijvingStaatErGeenKommaInDeStatusbalk) {
  Speelt("vul SetNaam ABC\ndruk OKButton",
         R"(- NieuweSet
            = Statusbalk "Actieve bestandenset: ABC")");
  EXPECT_TRUE(IniHeeft("Set1=ABC,"));
}

TEST_F(NieuweSetVenster, EenNaamIsHoogstensAchtTekensEnEenOmschrijvingVijftig) {
  Speelt("vul SetNaam ABCDEFGHIJ\ntoon SetNaam\nvul SetOmsch " + std::string(60, 'x') +
             "\ntoon SetOmsch\ndruk BackButton",
         "= SetNaam \"ABCDEFGH\"\n= SetOmsch \"" + std::string(50, 'x') +
             "\"\n- NieuweSet\n= Statusbalk \"Actieve Bestandenset:\"");
}

TEST_F(NieuweSetVenster, EenNaamDieErAlIsHoudtDeFocus) {
  MaakSet("ABC");
  ZetIni("[Sets]\nSet1=ABC,oms\n");
  Speelt("vul SetNaam abc\ndruk OKButton\ntoets Escape",
         R"(! uitroep "Deze bestandenset bestaat al"
            ! uitroep "Deze bestandenset bestaat al"
            - NieuweSet
            = Statusbalk "Actieve bestandenset: ABC,oms")");
}

TEST_F(NieuweSetVenster, EnterGaatVanDeNaamNaarDeOmschrijving) {
  Speelt("typ SetNaam abc\ntoets SetNaam Enter\ntoon\ntoets Escape",
         R"(: NieuweSet "Nieuwe Bestandenset"
            = SetNaam "ABC"
            = SetOmsch ""
            = OKButton "&OK"
            = BackButton "&Terug"
            * SetOmsch
            - NieuweSet
            = Statusbalk "Actieve Bestandenset:")");
  EXPECT_FALSE(Bestaat("DATA"));
}

TEST_F(NieuweSetVenster, EnterBijEenNaamDieErAlIsHoudtDeFocus) {
  MaakSet("ABC");
  ZetIni("[Sets]\nSet1=ABC,oms\n");
  Speelt("typ SetNaam abc\ntoets SetNaam Enter\ntoon\ndruk BackButton",
         R"(! uitroep "Deze bestandenset bestaat al"
            : NieuweSet "Nieuwe Bestandenset"
            = SetNaam "ABC"
            = SetOmsch ""
            = OKButton "&OK"
            = BackButton "&Terug"
            * SetNaam
            - NieuweSet
            = Statusbalk "Actieve bestandenset: ABC,oms")");
}

TEST_F(NieuweSetVenster, EenNaamUitDeLijstKomtErNietTweemaalInEnHoudtHaarBestanden) {
  MaakSet("ABC");
  Schrijf("DATA/ABC/ABC.RLT", "oude inhoud");
  ZetIni("[Sets]\nSet1=ABC,oms\n");
  Speelt("vul SetNaam abc,x\nvul SetOmsch nieuw\ndruk OKButton",
         R"(- NieuweSet
            = Statusbalk "Actieve bestandenset: ABC,nieuw")");
  EXPECT_EQ(Inhoud("DATA/ABC/ABC.RLT"), "oude inhoud");
  EXPECT_TRUE(IniHeeft("Set1=ABC,oms"));
  EXPECT_EQ(Ini().find("Set2="), std::string::npos);
}

TEST_F(NieuweSetVenster, OudeBestandenWordenOvergenomen) {
  MaakSet("OUD");
  Schrijf("DATA/OUD/OUD.PRS", "oude personen");
  std::filesystem::remove(map_ / "DATA/OUD/OUD.PLT");
  Speelt("vul SetNaam OUD\ndruk OKButton",
         R"(- NieuweSet
            = Statusbalk "Actieve bestandenset: OUD")");
  EXPECT_EQ(Inhoud("DATA/OUD/OUD.PRS"), "oude personen");
  EXPECT_EQ(Inhoud("DATA/OUD/OUD.PLT").size(), 27U);
}

TEST_F(NieuweSetVenster, OudeBestandenOnderEenAndereKastWordenOokOvergenomen) {
  MaakSet("OUD");
  std::filesystem::remove(map_ / "DATA/OUD/OUD.PRS");
  Schrijf("DATA/OUD/oud.prs", "oude personen");
  Speelt("vul SetNaam OUD\ndruk OKButton",
         R"(- NieuweSet
            = Statusbalk "Actieve bestandenset: OUD")");
  EXPECT_EQ(Inhoud("DATA/OUD/oud.prs"), "oude personen");
  EXPECT_EQ(Bestaat("DATA/OUD/OUD.PRS"), !kKastTelt);
}

TEST_F(NieuweSetVenster, EenBestandDatNietGemaaktKanWordenHeeftZijnMelding) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  std::filesystem::create_directories(map_ / "DATA/ABC/TEKST");
  {
    const ZonderRechten rechten(map_ / "DATA/ABC");
    Speelt(
        "vul SetNaam ABC\ndruk OKButton",
        R"~(! stop "Fout bij het openen van het Persoonsbestand (<map>/DATA/ABC/ABC.PRS, 70 Geen toegang)"
            - NieuweSet
            = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")~");
  }
  EXPECT_FALSE(Bestaat("DATA/ABC/ABC.PRS"));
  EXPECT_EQ(Ini().find("ABC"), std::string::npos);
}

TEST_F(NieuweSetVenster, BlankenRondDeNaamTellenNietEnDeVolgersBeginnenOpnieuw) {
  Verwacht("vul SetNaam \" ab \"\ndruk OKButton", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             hoofd.volgers.HuidigPersoonNr = 12;
             hoofd.volgers.HuidigRelatieNr = 13;
             Toont<NieuweSet>(hoofd, menu)(hoofd.gesprek);
             EXPECT_EQ(hoofd.ActieveSetNaam, "AB");
             EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, -1);
             EXPECT_EQ(hoofd.volgers.HuidigRelatieNr, -1);
             EXPECT_TRUE(menu.Zoek("MenuInvoer")->Ingeschakeld());
           }),
           R"(+ NieuweSet "Nieuwe Bestandenset"
              - NieuweSet)");
  EXPECT_TRUE(IniHeeft("Set1=AB,"));
}

TEST_F(NieuweSetVenster, ZonderNaamIsErGeenSetActief) {
  MaakSet("ABC");
  ZetIni("[Sets]\nSet1=ABC,oms\n");
  Speelt("druk OKButton",
         R"(! uitroep "Geen Bestandenset gekozen"
            - NieuweSet
            = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")");
  EXPECT_EQ(Ini().find("Set2="), std::string::npos);
}

TEST_F(NieuweSetVenster, EenNaamDieErgensAndersHeenWijstWordtGeweigerd) {
  Speelt("vul SetNaam ../X\ndruk OKButton\nvul SetNaam CON\ndruk OKButton\ntoon\ndruk BackButton",
         R"(! uitroep "\"../X\" is geen geldige naam voor een bestandenset"
            ! uitroep "\"CON\" is geen geldige naam voor een bestandenset"
            : NieuweSet "Nieuwe Bestandenset"
            = SetNaam "CON"
            = SetOmsch ""
            = OKButton "&OK"
            = BackButton "&Terug"
            * SetNaam
            - NieuweSet
            = Statusbalk "Actieve Bestandenset:")");
  EXPECT_FALSE(Bestaat("DATA"));
  EXPECT_FALSE(Bestaat("X"));
}

TEST_F(NieuweSetVenster, EenVolleLijstNeemtGeenSetMeerOp) {
  std::string lijst;
  for (int i = 1; i <= 99; ++i)
    lijst += "Set" + std::to_string(i) + "=S" + std::to_string(i) + "\n";
  MaakSet("S1");
  ZetIni("[Sets]\n" + lijst);
  Speelt("vul SetNaam NIEUW\ndruk OKButton\ndruk BackButton",
         R"(! uitroep "De lijst met bestandensets is vol"
            - NieuweSet
            = Statusbalk "Actieve bestandenset: S1")");
  EXPECT_FALSE(Bestaat("DATA/NIEUW"));
}

TEST_F(NieuweSetVenster, EenDirectoryDieNietGemaaktKanWordenGeeftEenMelding) {
  Schrijf("DATA", "een bestand");
  Speelt("vul SetNaam ABC\ndruk OKButton",
         R"~(! stop "Fout bij het maken van de directory <map>/DATA/ABC\n(Pad niet gevonden)"
            - NieuweSet
            = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")~");
  EXPECT_EQ(Inhoud("DATA"), "een bestand");
  EXPECT_EQ(Ini().find("ABC"), std::string::npos);
}

TEST_F(NieuweSetVenster, EenTekstdirectoryDieNietGemaaktKanWordenGeeftDezelfdeMelding) {
  Schrijf("DATA/ABC", "een bestand");
  Speelt("vul SetNaam ABC\ndruk OKButton",
         R"~(! stop "Fout bij het maken van de directory <map>/DATA/ABC/TEKST\n(Pad niet gevonden)"
            - NieuweSet
            = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")~");
}

TEST_F(NieuweSetVenster, EenBestandDatNietOpenGaatLaatDeSetUitDeLijst) {
  std::filesystem::create_directories(map_ / "DATA/ABC/ABC.RLT/vol");
  Speelt(
      "vul SetNaam ABC\ndruk OKButton",
      R"~(! stop "Fout bij het openen van het Relatiebestand (<map>/DATA/ABC/ABC.RLT, 75 Pad is een directory)"
            - NieuweSet
            = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")~");
  EXPECT_EQ(Inhoud("DATA/ABC/ABC.PRS").size(), 128U);
  EXPECT_FALSE(Bestaat("DATA/ABC/ABC.OPM"));
  EXPECT_EQ(Ini().find("Set1="), std::string::npos);
}

TEST_F(NieuweSetVenster, EenBestaandeTekstdirectoryOnderEenAndereKastVoldoet) {
  std::filesystem::create_directories(map_ / "DATA/ABC/Tekst");
  Speelt("vul SetNaam ABC\ndruk OKButton",
         R"(- NieuweSet
            = Statusbalk "Actieve bestandenset: ABC")");
  EXPECT_EQ(Bestaat("DATA/ABC/TEKST"), !kKastTelt);
}

TEST_F(NieuweSetVenster, EenLeegBestandIsEenNieuw) {
  MaakSet("ABC");
  Schrijf("DATA/ABC/ABC.PRS", "");
  Schrijf("DATA/ABC/ABC.PLT", "");
  Speelt("vul SetNaam ABC\ndruk OKButton",
         R"(- NieuweSet
            = Statusbalk "Actieve bestandenset: ABC")");
  EXPECT_EQ(Inhoud("DATA/ABC/ABC.PRS").size(), 128U);
  EXPECT_EQ(Inhoud("DATA/ABC/ABC.PLT").size(), 27U);
}

TEST_F(NieuweSetVenster, EenLeegBestandDatNietGeschrevenKanWordenBlijftLeeg) {
  MaakSet("ABC");
  Schrijf("DATA/ABC/ABC.PRS", "");
  Storing storing{.bij = 1, .kort = true};
  Speel("vul SetNaam ABC\ndruk OKButton", MetMenu([&](Hoofdmodule& hoofd, MenuWindow& menu) {
          hoofd.bestanden = Bestandenset(FalendeOpener(storing));
          Toont<NieuweSet>(hoofd, menu)(hoofd.gesprek);
          EXPECT_FALSE(hoofd.SetActief());
        }));
  EXPECT_TRUE(Bestaat("DATA/ABC/ABC.PRS"));
  EXPECT_EQ(Inhoud("DATA/ABC/ABC.PRS"), "");
}

TEST_F(NieuweSetVenster, EenBestandDatNietBekekenKanWordenBlijftZoalsHetIs) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  std::filesystem::create_directories(map_ / "DATA/ABC/TEKST");
  Schrijf("dicht/ABC.PRS", "oude personen");
  std::filesystem::create_symlink(map_ / "dicht/ABC.PRS", map_ / "DATA/ABC/ABC.PRS");
  {
    const ZonderRechten rechten(map_ / "dicht", std::filesystem::perms(0));
    Speelt(
        "vul SetNaam ABC\ndruk OKButton",
        R"~(! stop "Fout bij het openen van het Persoonsbestand (<map>/DATA/ABC/ABC.PRS, 70 Geen toegang)"
            - NieuweSet
            = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")~");
  }
  EXPECT_TRUE(std::filesystem::is_symlink(map_ / "DATA/ABC/ABC.PRS"));
  EXPECT_EQ(Inhoud("dicht/ABC.PRS"), "oude personen");
}

TEST_F(NieuweSetVenster, EenKoppelingNaarNergensGaatNietWeg) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  std::filesystem::create_directories(map_ / "DATA/ABC");
  std::filesystem::create_symlink(map_ / "stick/ABC.PRS", map_ / "DATA/ABC/ABC.PRS");
  Speelt(
      "vul SetNaam ABC\ndruk OKButton",
      R"~(! stop "Fout bij het openen van het Persoonsbestand (<map>/DATA/ABC/ABC.PRS, 53 Bestand niet gevonden)"
          - NieuweSet
          = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")~");
  EXPECT_TRUE(std::filesystem::is_symlink(map_ / "DATA/ABC/ABC.PRS"));
}

TEST_F(NieuweSetVenster, EenOnleesbaarPlaatsbestandWordtNietDoorHetCentraleVervangen) {
  std::filesystem::create_directories(map_ / "DATA/ABC/ABC.PLT/vol");
  Schrijf("DATA/PLAATS.PLT", "centraal");
  Speelt(
      "vul SetNaam ABC\ndruk OKButton",
      R"~(! stop "Fout bij het openen van het Plaatsbestand (<map>/DATA/ABC/ABC.PLT, 75 Pad is een directory)"
          - NieuweSet
          = Statusbalk "Actieve bestandenset: <geen bestandenset actief>")~");
  EXPECT_EQ(Inhoud("DATA/PLAATS.PLT"), "centraal");
}

TEST_F(NieuweSetVenster, WaarHetSchrijvenOokMisluktEenNieuwePogingSlaagt) {
  bool geweest = true;
  for (int k = 1; geweest; ++k) {
    ASSERT_LT(k, 100);
    std::filesystem::remove_all(map_ / "DATA");
    ZetIni("");
    Storing storing{k};
    Speel("vul SetNaam ABC\ndruk OKButton", MetMenu([&](Hoofdmodule& hoofd, MenuWindow& menu) {
            hoofd.bestanden = Bestandenset(FalendeOpener(storing));
            Toont<NieuweSet>(hoofd, menu)(hoofd.gesprek);
            EXPECT_EQ(hoofd.SetActief(), !storing.Geweest()) << k;
          }));
    geweest = storing.Geweest();
    EXPECT_EQ(verslag_.find("! stop ") != std::string::npos, geweest) << k << verslag_;
    EXPECT_EQ(IniHeeft("Set1=ABC,"), !geweest);
    Speel("kies MaakSet\nvul SetNaam ABC,\ndruk OKButton\nsluit", Sessie());
    EXPECT_EQ(Inhoud("DATA/ABC/ABC.PRS").size(), 128U) << k;
    EXPECT_EQ(Inhoud("DATA/ABC/ABC.PLT").size(), 27U) << k;
  }
}

}  // namespace
}  // namespace lb77
