#include "app/MenuWindow.h"
#include "app/SessieToets.h"
#include "app/ZonderRechten.h"
#include "steun/Gouden.h"
#include "store/Platform.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

class Hoofdvenster : public SessieToets {
 protected:
  // A settings file with that set in the list, which lies on the disk.
  void ZetSet(std::string_view systeem = "Set=ABC\n") {
    MaakSet("ABC");
    ZetIni("[Systeem]\n" + std::string(systeem) + "[Sets]\nSet1=ABC,mijn familie\n");
  }
  // Loads the main window without showing it.
  Programma Geladen(std::function<void(Hoofdmodule&, MenuWindow&)> doe) {
    return MetMenu([doe = std::move(doe)](Hoofdmodule& hoofd, MenuWindow& menu) {
      for (const Bediening* keuze : menu.Bedieningen()) menu.Hang(keuze->Naam(), [] {});
      EXPECT_TRUE(menu.Laad());
      doe(hoofd, menu);
    });
  }
};

// The names of the entries that are enabled.
std::string Ingeschakeld(const MenuWindow& menu) {
  std::string uit;
  for (const Bediening* b : menu.Bedieningen()) {
    if (b->Soort() == BedieningSoort::MenuKeuze && b->Ingeschakeld()) uit += b->Naam() + " ";
  }
  return uit;
}

TEST_F(Hoofdvenster, HetHeleMenuStaatErInDeVolgordeVanDeTabel) {
  ZetIni("");
  std::string menu;
  Verwacht("", MetMenu([&](Hoofdmodule&, MenuWindow& venster) {
             for (const Bediening* b : venster.Bedieningen()) {
               if (b->Soort() != BedieningSoort::MenuKeuze) continue;
               const auto& keuze = static_cast<const MenuKeuze&>(*b);
               menu += keuze.Menu() + " | " + keuze.Naam() + " | " + keuze.Bijschrift() + "\n";
             }
           }),
           "");
  VerwachtGouden("MENU.TXT", WindowsNaarUtf8(menu));
}

// Behind the entries of the menu of scripts, which stays what it is.
TEST_F(Hoofdvenster, EenGebruikerHeeftOokDeWegenNaarEenFamilie) {
  ZetIni("");
  std::string erbij;
  Verwacht("", MetMenu([&](Hoofdmodule& hoofd, MenuWindow& draaiboek) {
             MenuWindow venster(hoofd, MenuVoor::Gebruiker);
             std::string eerder;
             for (const Bediening* b : venster.Bedieningen()) {
               if (b->Soort() != BedieningSoort::MenuKeuze) continue;
               const auto& keuze = static_cast<const MenuKeuze&>(*b);
               if (!draaiboek.Zoek(b->Naam())) {
                 erbij += keuze.Menu() + " | " + keuze.Naam() + " | " + keuze.Bijschrift() + "\n";
                 EXPECT_TRUE(eerder == "VerwijderSet" || eerder.ends_with("Set")) << eerder;
               }
               eerder = keuze.Naam();
             }
             std::string gedaan;
             for (const char* naam : {"OudeSet", "GedcomSet", "VoorbeeldSet"}) {
               venster.Hang(naam, [&gedaan, naam] { gedaan += naam; });
             }
             venster.ZetMenu();
             for (const char* naam : {"OudeSet", "GedcomSet", "VoorbeeldSet"}) {
               EXPECT_TRUE(venster.Zoek(naam)->Ingeschakeld()) << naam;
               venster.Klik(*venster.Zoek(naam));
             }
             EXPECT_EQ(gedaan, "OudeSetGedcomSetVoorbeeldSet");
           }),
           "");
  VerwachtGouden("MENU_ERBIJ.TXT", WindowsNaarUtf8(erbij));
}

TEST_F(Hoofdvenster, EenSetDieEldersOpenIsKanDichtBlijven) {
  ZetSet();
  Bestandsgreep ander;
  ASSERT_FALSE(ander.Open(map_ / "DATA/ABC/ABC.PRS"));
  ASSERT_FALSE(ander.Vergrendel());
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             menu.LaatSetElders();
             EXPECT_TRUE(menu.Laad());
             EXPECT_EQ(hoofd.ActieveSetNaam, "<geen bestandenset actief>");
             EXPECT_EQ(menu.Statusbalk.Tekst(), "Actieve bestandenset: <geen bestandenset actief>");
           }),
           "");
  ander.Sluit();
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             menu.LaatSetElders();
             EXPECT_TRUE(menu.Laad());
             EXPECT_EQ(hoofd.ActieveSetNaam, "ABC");
           }),
           "");
}

TEST_F(Hoofdvenster, ElkMenuIsEenEntryDieErVoorStaat) {
  ZetIni("");
  Verwacht("", MetMenu([](Hoofdmodule&, MenuWindow& venster) {
             std::string eerder = " ";
             for (const Bediening* b : venster.Bedieningen()) {
               if (b->Soort() != BedieningSoort::MenuKeuze) continue;
               const std::string& menu = static_cast<const MenuKeuze&>(*b).Menu();
               EXPECT_TRUE(menu.empty() || eerder.find(" " + menu + " ") != std::string::npos);
               eerder += b->Naam() + " ";
             }
           }),
           "");
}

TEST_F(Hoofdvenster, ZonderSetWerkenAlleenDeEntriesDieGeenSetNodigHebben) {
  ZetIni("");
  Verwacht("", Geladen([](Hoofdmodule& hoofd, MenuWindow& menu) {
             EXPECT_EQ(hoofd.ActieveSetNaam, "<geen bestandenset aanwezig>");
             EXPECT_EQ(menu.Statusbalk.Tekst(), "Actieve Bestandenset:");
             for (const char* naam :
                  {"MenuInvoer", "MenuUitvTekst", "MenuUitvSchema", "Rapport", "ExportData",
                   "ImportData", "Corrigeer", "Controle", "ViewTekst", "OpenSet"}) {
               EXPECT_FALSE(menu.Zoek(naam)->Ingeschakeld()) << naam;
             }
             for (const char* naam : {"ZetIni", "MaakSet", "KeuzeAfsluiten", "MenuBestand"}) {
               EXPECT_TRUE(menu.Zoek(naam)->Ingeschakeld()) << naam;
             }
           }),
           "");
}

TEST_F(Hoofdvenster, MetEenSetWerktAllesBehalveWatGeenActieHeeft) {
  ZetSet();
  Verwacht("", Geladen([](Hoofdmodule&, MenuWindow& menu) {
             std::string uit;
             for (const Bediening* b : menu.Bedieningen()) {
               if (!b->Ingeschakeld()) uit += b->Naam() + " ";
             }
             EXPECT_EQ(uit,
                       "ImportDBase ImportAscii ExpVVF ExpTiny InvoerAkten RefInvoer TekstVerwant "
                       "UitvAkte ");
           }),
           "");
}

TEST_F(Hoofdvenster, EenSetDieNietActiefIsKanNogGeopendWorden) {
  ZetSet();
  Verwacht("", Geladen([](Hoofdmodule& hoofd, MenuWindow& menu) {
             hoofd.ActieveSetNaam = kGeenSetActief;
             menu.ZetMenu();
             EXPECT_TRUE(menu.Zoek("OpenSet")->Ingeschakeld());
             EXPECT_FALSE(menu.Zoek("MenuInvoer")->Ingeschakeld());
             EXPECT_FALSE(menu.Zoek("ViewTekst")->Ingeschakeld());
           }),
           "");
}

TEST_F(Hoofdvenster, WaarNietsAanHangtIsUit) {
  ZetSet();
  Verwacht("", MetMenu([](Hoofdmodule&, MenuWindow& menu) {
             EXPECT_TRUE(menu.Laad());
             EXPECT_EQ(Ingeschakeld(menu),
                       "MenuBestand ZetIni ImportData ExportData Controle Corrigeer CorrigeerAdmin "
                       "Verwijzingen VerwijzingenVervolg KeuzeAfsluiten MenuInvoer MenuUitvTekst "
                       "MenuUitvSchema Rapport MenuVeiligheid MenuHelp ");
           }),
           "");
}

TEST_F(Hoofdvenster, AanWatVoorGoedUitIsKanNietsHangen) {
  ZetSet();
  Verwacht("", MetMenu([](Hoofdmodule&, MenuWindow& menu) {
             menu.Hang("ImportDBase", [] { FAIL(); });
             menu.Hang("BestaatNiet", [] { FAIL(); });
             EXPECT_TRUE(menu.Laad());
             EXPECT_FALSE(menu.Zoek("ImportDBase")->Ingeschakeld());
           }),
           "");
}

TEST_F(Hoofdvenster, ExpVVFEnExpTinyZijnVerborgen) {
  ZetIni("");
  Verwacht("", Geladen([](Hoofdmodule&, MenuWindow& menu) {
             EXPECT_FALSE(menu.Zoek("ExpVVF")->Zichtbaar());
             EXPECT_FALSE(menu.Zoek("ExpTiny")->Zichtbaar());
             EXPECT_TRUE(menu.Zoek("ExpHSK")->Zichtbaar());
           }),
           "");
}

TEST_F(Hoofdvenster, DeEersteKeerIsErGeenSet) {
  Verwacht(
      R"(antwoord OK
              toon Statusbalk
              toon OpenSet
              kies KeuzeAfsluiten)",
      Sessie(),
      R"(? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nBestand niet gevonden\n\nDruk op OK om een nieuw IniBestand te maken\nDruk op CANCEL om te stoppen" -> OK
              + MenuWindow "LB77 voor Windows"
              = Statusbalk "Actieve Bestandenset:"
              = OpenSet "&Open Bestandenset" [uit]
              - MenuWindow)");
  EXPECT_TRUE(Bestaat("TEMP"));
}

TEST_F(Hoofdvenster, DeLaatsteSetKomtVanzelfTerug) {
  ZetSet("Set=abc\n");
  Verwacht("toon Statusbalk\nsluit", Sessie(),
           R"(+ MenuWindow "LB77 voor Windows"
              = Statusbalk "Actieve bestandenset: ABC,mijn familie"
              - MenuWindow)");
  EXPECT_TRUE(IniHeeft("Set=ABC"));
  EXPECT_TRUE(IniHeeft("SetOms=mijn familie"));
}

TEST_F(Hoofdvenster, ZonderLaatsteSetKomtDeEersteVanDeLijst) {
  ZetSet("Set=\n");
  Verwacht("toon Statusbalk\nsluit", Sessie(),
           R"(+ MenuWindow "LB77 voor Windows"
              = Statusbalk "Actieve bestandenset: ABC,mijn familie"
              - MenuWindow)");
}

TEST_F(Hoofdvenster, EenLaatsteSetDieNietInDeLijstStaatGeeftEenWaarschuwing) {
  ZetSet("Set=WEG\n");
  MaakSet("WEG");
  Verwacht("toon Statusbalk\nsluit", Sessie(),
           R"(! uitroep "LIJNBOOM.INI geeft ongeldige actieve bestandenset"
              + MenuWindow "LB77 voor Windows"
              = Statusbalk "Actieve bestandenset: WEG"
              - MenuWindow)");
}

TEST_F(Hoofdvenster, HetScheidingstekenVanDatumsKomtUitDeInstellingen) {
  ZetIni("[Genealogie]\nDatumForm=0\n");
  Verwacht("", Geladen([](Hoofdmodule& hoofd, MenuWindow&) {
             EXPECT_EQ(hoofd.schrijfwijze.DatumScheider, '-');
           }),
           "");
}

TEST_F(Hoofdvenster, HetVensterKomtWaarHetStond) {
  ZetIni("[Scherm]\nMainX=321\nMainY=234\n");
  Verwacht("", Geladen([](Hoofdmodule&, MenuWindow& menu) {
             ASSERT_TRUE(menu.Positie());
             EXPECT_EQ(menu.Positie()->x, 321);
             EXPECT_EQ(menu.Positie()->y, 234);
           }),
           "");
}

TEST_F(Hoofdvenster, AfsluitenBewaartDePlaatsAltijd) {
  ZetIni("[Scherm]\nMainX=321\nMainY=234\n");
  Verwacht("kies KeuzeAfsluiten", Sessie(),
           R"(+ MenuWindow "LB77 voor Windows"
              - MenuWindow)");
  EXPECT_TRUE(IniHeeft("Versie=2.1"));
  EXPECT_TRUE(IniHeeft("MainX=321"));
}

TEST_F(Hoofdvenster, AfsluitenBewaartWaarHetVensterNuStaat) {
  ZetIni("[Scherm]\nMainX=321\nMainY=234\n");
  Verwacht("", MetMenu([](Hoofdmodule&, MenuWindow& menu) {
             EXPECT_TRUE(menu.Laad());
             menu.ZetPositie({400, 500});
             EXPECT_TRUE(menu.Klik(*menu.Zoek("KeuzeAfsluiten")));
             EXPECT_TRUE(menu.Gesloten());
           }),
           "");
  EXPECT_TRUE(IniHeeft("MainX=400"));
  EXPECT_TRUE(IniHeeft("MainY=500"));
}

TEST_F(Hoofdvenster, HetKaderBewaartDePlaatsAlleenAlsZeAndersIs) {
  ZetIni("[Scherm]\nMainX=321\nMainY=234\n");
  const std::string voor = Ini();
  Verwacht("sluit", Sessie(),
           R"(+ MenuWindow "LB77 voor Windows"
              - MenuWindow)");
  EXPECT_EQ(Ini(), voor);
  Verwacht("", Geladen([](Hoofdmodule&, MenuWindow& menu) {
             menu.ZetPositie({400, 234});
             menu.VraagSluiten();
             EXPECT_TRUE(menu.Gesloten());
           }),
           "");
  EXPECT_TRUE(IniHeeft("MainX=400"));
  EXPECT_TRUE(IniHeeft("MainY=234"));
  Verwacht("", Geladen([](Hoofdmodule&, MenuWindow& menu) {
             menu.ZetPositie({400, 567});
             menu.VraagSluiten();
           }),
           "");
  EXPECT_TRUE(IniHeeft("MainY=567"));
}

TEST_F(Hoofdvenster, EscapeSluitHetProgrammaNiet) {
  ZetIni("");
  Verwacht("toets Escape\ntoon Statusbalk", Sessie(),
           R"(+ MenuWindow "LB77 voor Windows"
              = Statusbalk "Actieve Bestandenset:")");
}

// A set that may be written beside settings that may not.
class AlleenLezen : public Hoofdvenster {
 protected:
  void SetUp() override {
    ZetSet();
    namespace fs = std::filesystem;
    fs::permissions(map_ / "LIJNBOOM.INI", fs::perms(0444));
    for (const auto& deel : fs::recursive_directory_iterator(map_ / "DATA")) {
      fs::permissions(deel.path(), fs::perms(deel.is_directory() ? 0777 : 0666));
    }
  }
};

constexpr std::string_view kNietTeSchrijven =
    R"(? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nGeen toegang" -> )";

TEST_F(AlleenLezen, MetInstellingenDieNietTeSchrijvenZijnGaatHetProgrammaDoor) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  const std::string voor = Ini();
  {
    const ZonderRechten rechten(map_);
    const std::string vraag(kNietTeSchrijven);
    Verwacht("antwoord OK OK\ntoon Statusbalk\ntoon Rapport\nkies KeuzeAfsluiten",
             Sessie(), vraag + R"(OK
               + MenuWindow "LB77 voor Windows"
               = Statusbalk "Actieve bestandenset: ABC,mijn familie"
               = Rapport "&Rapporten"
               )" + vraag + "OK\n- MenuWindow");
  }
  EXPECT_EQ(Ini(), voor);
}

TEST_F(AlleenLezen, AnnulerenBijHetOpstartenEindigtHetProgrammaVoorHetVenster) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  const ZonderRechten rechten(map_);
  Verwacht("antwoord Annuleren", Sessie(), std::string(kNietTeSchrijven) + "Annuleren");
}

TEST_F(Hoofdvenster, WieHetEindeKiestKomtNaDeDialoogBuiten) {
  ZetIni("");
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             menu.Hang("MaakSet", [&] { hoofd.instellingen.eindeGevraagd = true; });
             EXPECT_TRUE(menu.Laad());
             EXPECT_TRUE(menu.Klik(*menu.Zoek("MaakSet")));
             EXPECT_TRUE(menu.Gesloten());
           }),
           "");
}

TEST_F(Hoofdvenster, NaEenDialoogKloptHetMenuMetDeSet) {
  ZetSet();
  Verwacht("", Geladen([](Hoofdmodule& hoofd, MenuWindow& menu) {
             menu.Hang("ViewTekst", [&] { hoofd.ActieveSetNaam = kGeenSetActief; });
             EXPECT_TRUE(menu.Klik(*menu.Zoek("ViewTekst")));
             EXPECT_FALSE(menu.Zoek("Rapport")->Ingeschakeld());
           }),
           "");
}

}  // namespace
}  // namespace lb77
