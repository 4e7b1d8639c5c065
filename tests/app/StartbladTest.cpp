#include <chrono>
#include <ctime>

#include "app/OpenSetForm.h"
#include "app/SessieToets.h"
#include "app/VerwijderSetForm.h"
#include "steun/BouwFamilie.h"

namespace lb77 {
namespace {

// The main window as a user has it.
class StartbladVenster : public SessieToets {
 protected:
  std::vector<std::int16_t> gekozen_;
  std::filesystem::path gebracht_;

  void MaakFamilie(std::string_view naam) {
    MaakSet(naam);
    Speel("", Met([&](Hoofdmodule& hoofd) {
            ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(map_ / "DATA", naam)));
            BouwFamilie bouw(hoofd.Persoon, hoofd.Relatie, hoofd.Plaats, hoofd.Opmerking);
            bouw.Plaats("Delft", "ZH");
            const auto jan = bouw.Man("Jan", "van Dam", {{"GebDatum", "01-02-1900"}});
            static_cast<void>(bouw.Relatie(jan, bouw.Vrouw("Anna", "Blom"), {}));
          }));
  }
  // As if the file was last changed at that local time.
  void BewaarTijd(const std::filesystem::path& naam, const Tijdstip& tijd) const {
    std::tm delen{};
    delen.tm_year = tijd.jaar - 1900;
    delen.tm_mon = tijd.maand - 1;
    delen.tm_mday = tijd.dag;
    delen.tm_hour = tijd.uur;
    delen.tm_isdst = -1;
    const auto moment = std::chrono::system_clock::from_time_t(std::mktime(&delen));
    std::filesystem::last_write_time(map_ / naam, std::chrono::file_clock::from_sys(moment));
  }
  SpeelToets::Programma Venster(std::function<void(Hoofdmodule&, MenuWindow&)> vooraf = {}) {
    return MetMenu([this, vooraf](Hoofdmodule& hoofd, MenuWindow& menu) {
      menu.MaakStartblad().BijPersoon([this](std::int16_t nr) { gekozen_.push_back(nr); });
      menu.Hang("OpenSet", [&] { Toont<OpenSetForm>(hoofd, menu)(hoofd.gesprek); });
      menu.Hang("VerwijderSet", [&] { Toont<VerwijderSetForm>(hoofd, menu)(hoofd.gesprek); });
      menu.Hang("KopieButton", [&] { hoofd.gezien.Zag(3); });
      menu.BijBestand([this](const std::filesystem::path& bestand) { gebracht_ = bestand; });
      if (vooraf) vooraf(hoofd, menu);
      hoofd.gesprek.ToonModaal(menu);
    });
  }
};

TEST_F(StartbladVenster, ZonderSetBiedtHetDeVierWegen) {
  ZetIni("");
  Verwacht(
      "toon NieuweFamilie\ntoon Voorbeeldfamilie\ntoon StartKop\ntoon StartUitleg\ntoon "
      "OpenButton\ntoon ZoekButton\ntoon GezienLijst\nsluit",
      Venster(), R"(
      + MenuWindow "LB77 voor Windows"
      = NieuweFamilie "&Nieuwe familie"
      = Voorbeeldfamilie "Voorbeeldfamilie be&kijken"
      = StartKop "LB77 voor Windows"
      = StartUitleg "Er is geen familie geopend. Kies hoe u wilt beginnen:"
      = OpenButton "&Familie openen die er al is" [verborgen]
      = ZoekButton "Persoon &zoeken" [verborgen]
      = GezienLijst "" [verborgen]
      - MenuWindow)");
}

TEST_F(StartbladVenster, MetEenSetZegtHetNaamAantallenEnLaatsteWijziging) {
  MaakFamilie("EEN");
  // The newest of the four tells, for there is no journal.
  for (const char* soort : {"PRS", "RLT", "OPM", "PLT"}) {
    BewaarTijd(std::string("DATA/EEN/EEN.") + soort, {2019, 5, soort[0] == 'R' ? 3 : 2, 9, 5, 0});
  }
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,Familie van Dam\n");
  Verwacht(
      "toon StartKop\ntoon StartTelling\ntoon StartWijziging\ntoon NieuweFamilie\ntoon "
      "ZoekButton\ntoon InvoerButton\ntoon KwstButton\ntoon KopieButton\ntoon GezienLijst\nsluit",
      Venster(),
      R"~(
      + MenuWindow "LB77 voor Windows"
      = StartKop "Familie van Dam (EEN)"
      = StartTelling "2 personen, 1 relatie, 1 plaats"
      = StartWijziging "Laatst gewijzigd op 3 mei 2019."
      = NieuweFamilie "&Nieuwe familie" [verborgen]
      = ZoekButton "Persoon &zoeken"
      = InvoerButton "&Invoeren en wijzigen"
      = KwstButton "&Kwartierstaat"
      = KopieButton "Veiligheidskopie &maken"
      = GezienLijst "" [verborgen]
      - MenuWindow)~");
}

TEST_F(StartbladVenster, InEenNieuweSetIsNogNietsGewijzigd) {
  MaakSet("EEN");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,\n");
  Verwacht("toon StartWijziging\nsluit", Venster(), R"(
      + MenuWindow "LB77 voor Windows"
      = StartWijziging "Er is nog niets gewijzigd."
      - MenuWindow)");
}

TEST_F(StartbladVenster, EenWijzigingIsMeteenTeZien) {
  MaakFamilie("EEN");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,\n");
  Verwacht("druk ZoekButton\ntoon StartKop\ntoon StartTelling\ntoon StartWijziging\nsluit",
           Venster([](Hoofdmodule& hoofd, MenuWindow& menu) {
             menu.Hang("ZoekButton", [&hoofd] {
               BouwFamilie bouw(hoofd.Persoon, hoofd.Relatie, hoofd.Plaats, hoofd.Opmerking);
               static_cast<void>(bouw.Man("Kees", "van Dam"));
             });
           }),
           R"~(
      + MenuWindow "LB77 voor Windows"
      = StartKop "EEN"
      = StartTelling "3 personen, 1 relatie, 1 plaats"
      = StartWijziging "Laatste wijziging: Wijziging (2 januari 2026 om 3:04)"
      - MenuWindow)~");
}

TEST_F(StartbladVenster, WieGezienWerdStaatErEnBlijftVoorDeVolgendeKeer) {
  MaakFamilie("EEN");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,\n");
  Schrijf("GEZIEN.TXT", "EEN,2,99\r\n");
  Verwacht(
      "toon GezienLijst\nstel GezienLijst #0\ntoets GezienLijst Enter\ndubbelklik "
      "GezienLijst\ndruk KopieButton\nstel GezienLijst #0\ntoon GezienLijst\nsluit",
      Venster(),
      R"~(
      + MenuWindow "LB77 voor Windows"
      = GezienLijst ""
      #0 "2  Jan van Dam (1900-)"
      = GezienLijst "3  Anna Blom"
      #0 "3  Anna Blom"
      #1 "2  Jan van Dam (1900-)"
      - MenuWindow)~");
  EXPECT_EQ(gekozen_, (std::vector<std::int16_t>{2, 2}));
  EXPECT_EQ(Inhoud("GEZIEN.TXT"), "EEN,3,2,99\r\n");
}

TEST_F(StartbladVenster, EenSessieDieNietsBewaartBewaartOokDitNiet) {
  MaakFamilie("EEN");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,\n");
  Speel("druk KopieButton\nsluit",
        Venster([](Hoofdmodule& hoofd, MenuWindow&) { hoofd.instellingen.bewaren = false; }));
  EXPECT_FALSE(Bestaat("GEZIEN.TXT"));
}

TEST_F(StartbladVenster, EenAndereSetHeeftZijnEigenMensen) {
  MaakFamilie("EEN");
  MaakFamilie("TWEE");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,\nSet2=TWEE,\n");
  Schrijf("GEZIEN.TXT", "TWEE,2\r\n");
  Verwacht(
      "druk KopieButton\nkies OpenSet\nstel SetPicklist #1\ndruk OKButton\nstel GezienLijst "
      "#0\ntoon GezienLijst\nsluit",
      Venster(),
      R"~(
      + MenuWindow "LB77 voor Windows"
      + OpenSetForm "Open Bestandendset"
      - OpenSetForm
      = GezienLijst "2  Jan van Dam (1900-)"
      #0 "2  Jan van Dam (1900-)"
      - MenuWindow)~");
  EXPECT_EQ(Inhoud("GEZIEN.TXT"), "EEN,3\r\nTWEE,2\r\n");
}

TEST_F(StartbladVenster, AlleenEenGedcomBestandWordtAangenomen) {
  ZetIni("");
  Speel("sluit", Venster([this](Hoofdmodule&, MenuWindow& menu) {
          EXPECT_TRUE(menu.Neemt("/elders/a.ged"));
          EXPECT_TRUE(menu.Neemt("/elders/A.GED"));
          EXPECT_TRUE(menu.Neemt("/elders/a.gedcom"));
          EXPECT_FALSE(menu.Neemt("/elders/a.txt"));
          menu.Ontvang("/elders/a.txt");
          EXPECT_EQ(gebracht_, "");
          menu.Ontvang("/elders/a.ged");
          EXPECT_EQ(gebracht_, "/elders/a.ged");
          menu.BijBestand({});
          EXPECT_FALSE(menu.Neemt("/elders/a.ged"));
        }));
}

TEST_F(StartbladVenster, VernietigenVraagtMetNaamAantalEnPlaats) {
  MaakFamilie("EEN");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,Familie van Dam\n");
  Verwacht(R"(kies VerwijderSet
              druk DeleteJa
              druk OKButton
              antwoord Nee
              stel SetPicklist #0
              druk OKButton
              druk CancelButton
              toon Statusbalk
              sluit)",
           Venster(), MetMap(R"(
      + MenuWindow "LB77 voor Windows"
      + VerwijderSetForm "Verwijder Bestandendset"
      ! uitroep "Geen Bestandenset gekozen"
      ? vraag Ja/Nee "Bestandenset EEN (Familie van Dam) met 2 personen wordt vernietigd, met alle bestanden in\n<map>/DATA/EEN\nVernietigen ?" -> Nee
      - VerwijderSetForm
      = Statusbalk "Actieve bestandenset: EEN"
      - MenuWindow)"));
  EXPECT_TRUE(Bestaat("DATA/EEN/EEN.PRS"));
}

TEST_F(StartbladVenster, MetJaGaatDeSetEnUitDeLijstHalenVraagtNiets) {
  MaakFamilie("EEN");
  MaakSet("TWEE");
  std::filesystem::remove(map_ / "DATA/TWEE/TWEE.PRS");
  ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,\nSet2=TWEE,\n");
  Verwacht(R"(kies VerwijderSet
              stel SetPicklist #0
              druk OKButton
              antwoord Ja
              kies VerwijderSet
              stel SetPicklist #0
              druk DeleteJa
              druk OKButton
              toon OpenButton
              sluit)",
           Venster(), MetMap(R"~(
      + MenuWindow "LB77 voor Windows"
      + VerwijderSetForm "Verwijder Bestandendset"
      - VerwijderSetForm
      + VerwijderSetForm "Verwijder Bestandendset"
      ? vraag Ja/Nee "Bestandenset TWEE met een onbekend aantal personen wordt vernietigd, met alle bestanden in\n<map>/DATA/TWEE\nVernietigen ?" -> Ja
      ! stop "Fout bij het verwijderen van het Persoonsbestand (<map>/DATA/TWEE/TWEE.PRS, 53 Bestand niet gevonden)"
      - VerwijderSetForm
      = OpenButton "&Familie openen die er al is" [verborgen]
      - MenuWindow)~"));
  EXPECT_TRUE(Bestaat("DATA/EEN/EEN.PRS"));
  EXPECT_FALSE(Bestaat("DATA/TWEE"));
}

}  // namespace
}  // namespace lb77
