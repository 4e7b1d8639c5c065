#include "program/Vensterloop.h"

#include "app/DataVerhuizing.h"
#include "app/Handleiding.h"
#include "app/IniSysteem.h"
#include "app/SetOpenen.h"
#include "app/Welkom.h"
#include "entry/StartRecord.h"
#include "entry/ToonPersoon.h"
#include "entry/ZoekPersoon.h"
#include "forms/Hulpgever.h"
#include "program/Programma.h"
#include "program/Wegen.h"

namespace lb77 {

namespace {

void ToonKaart(Hoofdmodule& hoofd, std::int32_t nr) {
  const auto persoon = NaarInt16(nr);
  if (persoon && *persoon > 0) LoopKaarten(hoofd.gesprek, ToonPersoonVraag(hoofd, *persoon));
}

void HangStartbladOp(Programma& programma, Wegen& wegen) {
  MenuWindow& menu = programma.Menu();
  Hoofdmodule& hoofd = programma.Hoofd();
  Startblad& blad = menu.MaakStartblad();
  blad.Wegen.BijKeuze([&menu, &wegen](Weg weg) { menu.Doe([&wegen, weg] { wegen.Ga(weg); }); });
  blad.BijPersoon(
      [&menu, &hoofd](std::int16_t nr) { menu.Doe([&hoofd, nr] { ToonKaart(hoofd, nr); }); });
  menu.Hang("ZoekButton", [&hoofd] { ToonKaart(hoofd, VraagZoekPersoon(hoofd)); });
  for (const auto& [knop, keuze] : {std::pair{"InvoerButton", "InvPersRel"},
                                    {"KwstButton", "TekstKwst"},
                                    {"KopieButton", "VeiligKopie"},
                                    {"OpenButton", "OpenSet"}}) {
    menu.Hang(knop, [&menu, keuze = keuze] { menu.Klik(*menu.Zoek(keuze)); });
  }
  for (const auto& [keuze, weg] : {std::pair{"OudeSet", Weg::OudeBestanden},
                                   {"GedcomSet", Weg::Gedcom},
                                   {"VoorbeeldSet", Weg::Voorbeeld}}) {
    menu.Hang(keuze, [&wegen, weg = weg] { wegen.Ga(weg); });
  }
  menu.Hang("SetupSysteem", [&menu, &hoofd] {
    DataVerhuizing verhuizing(hoofd, menu);
    hoofd.gesprek.Toon<IniSysteem>(
        hoofd, [&verhuizing](const std::filesystem::path& data) { return verhuizing.Mag(data); });
    verhuizing.RondAf();
  });
  menu.BijBestand([&wegen](const std::filesystem::path& bestand) { wegen.LeesGedcom(bestand); });
}

// Shows the manual by its menu entry and by F1 in every form, for as long as the session lives.
class Handleidingsweg {
 public:
  Handleidingsweg(Programma& programma, const std::vector<std::filesystem::path>& installatie)
      : hoofd_(programma.Hoofd()),
        installatie_(installatie),
        hulp_(dynamic_cast<Hulpgever*>(&hoofd_.gesprek)) {
    programma.Menu().Hang("Handleid", [this] { Toon({}); });
    if (hulp_) hulp_->BijHulp([this](const Formulier& vorm) { Toon(vorm.HulpOnderwerp()); });
  }
  ~Handleidingsweg() {
    if (hulp_) hulp_->BijHulp(nullptr);
  }
  Handleidingsweg(const Handleidingsweg&) = delete;
  Handleidingsweg& operator=(const Handleidingsweg&) = delete;

 private:
  void Toon(std::string_view onderwerp) {
    ToonHandleiding(hoofd_.gesprek, installatie_, hoofd_.Ini.TempDir(), onderwerp);
  }

  Hoofdmodule& hoofd_;
  const std::vector<std::filesystem::path>& installatie_;
  Hulpgever* hulp_;
};

}  // namespace

void VoerVoorGebruiker(Gesprek& gesprek, const Klok& klok, const Opstart& opstart) {
  Programma programma(gesprek, klok, opstart.programmaMap, MenuVoor::Gebruiker);
  Wegen wegen(programma.Hoofd(), programma.Menu(), opstart.installatie);
  HangStartbladOp(programma, wegen);
  const Handleidingsweg handleiding(programma, opstart.installatie);
  std::optional<Weg> eerst;
  if (IsEersteKeer(opstart.programmaMap)) {
    Welkom welkom(programma.Hoofd());
    gesprek.ToonModaal(welkom);
    eerst = welkom.Gekozen();
    if (!eerst) return;
  }
  if (!programma.Start()) return;
  if (opstart.bestand) programma.Menu().LaatSetElders();
  programma.Menu().BijBegin([&wegen, &opstart, eerst] {
    const bool meegegeven = opstart.bestand.has_value();
    if (eerst && !(meegegeven && eerst == Weg::Gedcom)) wegen.Ga(*eerst);
    if (meegegeven) wegen.LeesGedcom(*opstart.bestand);
  });
  programma.Voer();
}

}  // namespace lb77
