#include <random>

#include "app/Bestandensets.h"
#include "app/SessieToets.h"
#include "app/ZonderRechten.h"
#include "steun/Bestandsstelsel.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

TEST(SetNaam, EenGewoneNaamMag) {
  for (const char* naam : {"ABC", "A", "MIJN SET", "A.B", "Z-1_2", "\xC9\xC9N", "CONS", "COM",
                           "LPTX", "LANGERDANACHT", "NULL"}) {
    EXPECT_TRUE(IsSetNaam(naam)) << naam;
  }
}

TEST(SetNaam, WatErgensAndersHeenWijstMagNiet) {
  for (const char* naam :
       {"",   ".",  "..", "../X", "A/B", "A\\B", "/ETC", "C:",  "A..B", ".A",   "A.",
        " A", "A ", "A*", "A?",   "A\"", "A<B",  "A>B",  "A|B", "A\nB", "A\tB", "A\x7F"}) {
    EXPECT_FALSE(IsSetNaam(naam)) << naam;
  }
  EXPECT_FALSE(IsSetNaam(std::string_view("A\0B", 3)));
}

TEST(SetNaam, EenApparaatMagNiet) {
  for (const char* naam : {"CON", "con", "PRN", "AUX", "NUL", "NUL.TXT", "COM1", "LPT9", "AUX .X",
                           "LPT\xB9", "CONIN$", "CONOUT$"}) {
    EXPECT_FALSE(IsSetNaam(naam)) << naam;
  }
}

class Sets : public SessieToets {
 protected:
  // A list of two sets, both on the disk.
  void SetUp() override {
    MaakSet("EEN");
    MaakSet("TWEE");
    ZetIni("[Sets]\nSet1=EEN,de eerste\nSet2=TWEE\n");
  }
};

TEST_F(Sets, DePicklistToontNaamEnOmschrijvingEnKiestDeActieve) {
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             Formulier venster("Proef", "Proef");
             Keuzelijst lijst(venster, "SetPicklist");
             hoofd.ActieveSetNaam = "TWEE";
             LaadSetPicklist(hoofd, menu, lijst);
             EXPECT_EQ(lijst.Rijen(), (std::vector<std::string>{"EEN,de eerste", "TWEE"}));
             EXPECT_EQ(lijst.Tekst(), "TWEE");
             EXPECT_EQ(menu.Statusbalk.Tekst(), "Actieve bestandenset: TWEE");
           }),
           "");
}

TEST_F(Sets, EenOnbekendeActieveSetGeeftEenWaarschuwingEnGeenKeuze) {
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             Formulier venster("Proef", "Proef");
             Keuzelijst lijst(venster, "SetPicklist");
             hoofd.ActieveSetNaam = "DRIE";
             LaadSetPicklist(hoofd, menu, lijst);
             EXPECT_EQ(lijst.Index(), -1);
             EXPECT_EQ(hoofd.ActieveSetNaam, "<geen bestandenset actief>");
             EXPECT_EQ(menu.Statusbalk.Tekst(), "Actieve bestandenset: <geen bestandenset actief>");
             LaadSetPicklist(hoofd, menu, lijst);  // no set active: no warning
           }),
           R"(! uitroep "LIJNBOOM.INI geeft ongeldige actieve bestandenset")");
}

TEST_F(Sets, EenSetOpenenBewaartHaarInDeInstellingen) {
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             hoofd.volgers.HuidigPersoonNr = 12;
             EXPECT_TRUE(OpenSetVanRij(hoofd, menu, "een,de eerste"));
             EXPECT_EQ(hoofd.ActieveSetNaam, "EEN");
             EXPECT_EQ(menu.Statusbalk.Tekst(), "Actieve bestandenset: EEN,de eerste");
             EXPECT_EQ(hoofd.Persoon.AantalInAdmin(), 0);
             EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, -1);
           }),
           "");
  EXPECT_TRUE(IniHeeft("Set=EEN"));
  EXPECT_TRUE(IniHeeft("SetOms=de eerste"));
}

TEST_F(Sets, ZonderKeuzeBlijftErGeenSetActief) {
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             EXPECT_FALSE(OpenSetVanRij(hoofd, menu, ""));
             EXPECT_EQ(hoofd.ActieveSetNaam, "<geen bestandenset actief>");
           }),
           R"(! uitroep "Geen Bestandenset gekozen")");
}

TEST_F(Sets, EenNaamDieErgensAndersHeenWijstKomtNietBijDeSchijf) {
  for (const char* naam : {"../BUITEN", "..", "A/B"}) {
    ZetIni("[Systeem]\nSet=" + std::string(naam) + "\n[Sets]\nSet1=" + naam + "\n");
    Speel("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
            EXPECT_TRUE(menu.Laad());
            EXPECT_EQ(hoofd.ActieveSetNaam, "<geen bestandenset actief>");
          }));
    EXPECT_EQ(verslag_, "! uitroep \"\\\"" + std::string(naam) +
                            "\\\" is geen geldige naam voor een bestandenset\"\n");
  }
  EXPECT_FALSE(Bestaat("BUITEN"));
  EXPECT_FALSE(Bestaat("BUITEN.PRS"));
}

TEST_F(Sets, ElkBestandDatNietOpenGaatHeeftZijnMelding) {
  struct Geval {
    const char* achter;
    const char* naam;
  };
  for (const Geval& g : {Geval{".PRS", "Persoonsbestand"}, Geval{".RLT", "Relatiebestand"},
                         Geval{".OPM", "Opmerkingenbestand"}, Geval{".PLT", "Plaatsbestand"}}) {
    const std::filesystem::path pad = map_ / "DATA/EEN" / ("EEN" + std::string(g.achter));
    std::filesystem::remove(pad);
    std::filesystem::create_directories(pad / "vol");
    std::filesystem::create_directories(map_ / "DATA/PLAATS.PLT/vol");
    Speel("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
            EXPECT_TRUE(menu.Laad());
            EXPECT_EQ(hoofd.ActieveSetNaam, "<geen bestandenset actief>");
            EXPECT_FALSE(menu.Zoek("Rapport")->Ingeschakeld());
          }));
    EXPECT_EQ(verslag_.find("! stop \"Fout bij het openen van het " + std::string(g.naam) + " ("),
              0U)
        << verslag_;
    EXPECT_NE(verslag_.find("75 Pad is een directory)"), std::string::npos) << verslag_;
    std::filesystem::remove_all(pad);
    MaakSet("EEN");
  }
}

TEST_F(Sets, ZonderEigenPlaatsenWordtHetCentraleBestandGebruikt) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  const std::filesystem::path centraal = map_ / "DATA/PLAATS.PLT";
  std::filesystem::rename(map_ / "DATA/EEN/EEN.PLT", centraal);
  constexpr auto kVoorElk = std::filesystem::perms(0666);
  std::filesystem::permissions(centraal, kVoorElk);
  for (const char* naam : {"EEN.PRS", "EEN.RLT", "EEN.OPM"}) {
    std::filesystem::permissions(map_ / "DATA/EEN" / naam, kVoorElk);
  }
  const ZonderRechten rechten(map_ / "DATA/EEN");
  Verwacht("", Met([](Hoofdmodule& hoofd) {
             ASSERT_TRUE(hoofd.Ini.IniLees());
             hoofd.ActieveSetNaam = "EEN";
             OpenBestanden(hoofd, SetGebruik::Schrijven);
             EXPECT_EQ(hoofd.ActieveSetNaam, "EEN");
             EXPECT_TRUE(hoofd.Plaats.LeesAdmin());
           }),
           "");
}

TEST_F(Sets, EigenPlaatsenDieNietOpenGaanWordenNietDoorHetCentraleBestandVervangen) {
  std::filesystem::rename(map_ / "DATA/EEN/EEN.PLT", map_ / "DATA/PLAATS.PLT");
  std::filesystem::create_directories(map_ / "DATA/EEN/EEN.PLT/vol");
  Verwacht(
      "", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
        EXPECT_TRUE(menu.Laad());
        EXPECT_FALSE(hoofd.SetActief());
      }),
      MetMap(
          R"~(! stop "Fout bij het openen van het Plaatsbestand (<map>/DATA/EEN/EEN.PLT, 75 Pad is een directory)")~"));
}

TEST_F(Sets, EenDataDirectoryDieWegIsLaatHetProgrammaDoorgaan) {
  std::filesystem::remove_all(map_ / "DATA");
  Verwacht(
      "toon Statusbalk\nkies OpenSet\nstel SetPicklist #1\ndruk OKButton\nsluit", Sessie(),
      MetMap(
          R"~(! stop "Fout bij het openen van het Persoonsbestand (<map>/DATA/EEN/EEN.PRS, 53 Bestand niet gevonden)"
              + MenuWindow "LB77 voor Windows"
              = Statusbalk "Actieve bestandenset: <geen bestandenset actief>"
              + OpenSetForm "Open Bestandendset"
              ! stop "Fout bij het openen van het Persoonsbestand (<map>/DATA/TWEE/TWEE.PRS, 53 Bestand niet gevonden)"
              - OpenSetForm
              - MenuWindow)~"));
}

TEST_F(Sets, EenAfwezigBestandWordtLeegGemaaktEnDeSetGaatOpen) {
  for (const char* achter : {".PRS", ".RLT", ".OPM", ".PLT"}) {
    std::filesystem::remove(map_ / "DATA/EEN" / ("EEN" + std::string(achter)));
  }
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             EXPECT_TRUE(menu.Laad());
             EXPECT_EQ(hoofd.ActieveSetNaam, "EEN");
             EXPECT_FALSE(hoofd.Persoon.LeesAdmin());
           }),
           R"(! stop "Fout bij het lezen van het Administratierecord van het Persoonsbestand")");
  EXPECT_EQ(Inhoud("DATA/EEN/EEN.RLT"), "");
  EXPECT_TRUE(Bestaat("DATA/EEN/EEN.RLT"));
}

TEST_F(Sets, BeschadigdeBestandenGaanOpenEnWordenNietVeranderd) {
  std::mt19937 toeval(2);
  for (int keer = 0; keer < 30; ++keer) {
    std::string onzin(toeval() % 700, '\0');
    if (keer % 3 > 0) {
      for (char& teken : onzin) teken = static_cast<char>(toeval());
    }
    for (const char* achter : {".PRS", ".RLT", ".OPM", ".PLT"}) {
      Schrijf("DATA/EEN/EEN" + std::string(achter), onzin);
    }
    Speel("sluit", Sessie());
    EXPECT_NE(verslag_.find("+ MenuWindow"), std::string::npos);
    for (const char* achter : {".PRS", ".RLT", ".OPM", ".PLT"}) {
      EXPECT_EQ(Inhoud("DATA/EEN/EEN" + std::string(achter)), onzin);
    }
  }
}

TEST_F(Sets, BestandenOnderEenAndereKastGaanOpen) {
  std::filesystem::rename(map_ / "DATA/EEN/EEN.PRS", map_ / "DATA/EEN/een.prs");
  std::filesystem::rename(map_ / "DATA/EEN", map_ / "DATA/Een");
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             EXPECT_TRUE(menu.Laad());
             EXPECT_EQ(hoofd.ActieveSetNaam, "EEN");
             EXPECT_TRUE(hoofd.Persoon.LeesAdmin());
           }),
           "");
  EXPECT_EQ(Bestaat("DATA/EEN"), !kKastTelt);
}

}  // namespace
}  // namespace lb77
