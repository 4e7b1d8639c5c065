#include "cli/Sessie.h"

#include <ostream>
#include <string>
#include <system_error>

#include "app/Bestandensets.h"
#include "app/IniBestand.h"
#include "app/SetOpenen.h"
#include "store/Bestandenset.h"
#include "store/Paden.h"
#include "store/SetPaden.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

// Is there none? One that cannot be reached is no missing one.
bool Ontbreekt(const std::filesystem::path& pad) {
  std::error_code code;
  return std::filesystem::status(VindPad(pad), code).type() ==
         std::filesystem::file_type::not_found;
}

}  // namespace

Sessie::Sessie(const Omgeving& omgeving, Instelling instelling)
    : bediener([&omgeving](std::string_view regel) { omgeving.fout << regel << '\n'; }),
      programma_(bediener, omgeving.klok, omgeving.programmaMap) {
  Hoofd().instellingen.bewaren = instelling == Instelling::VoorLater;
}

bool Sessie::Start() {
  // The start-up asks one thing with another answer than No: without a settings file it makes one.
  if (Ontbreekt(Hoofd().programmaMap / kIniBestand)) bediener.HoudKlaar({}, Antwoord::OK);
  return programma_.Start();
}

bool Sessie::Kent(std::string_view naam, Omgang omgang) {
  const std::string set = Hoofdletters(naam);
  IniClass& ini = Hoofd().Ini;
  if (ini.BestandenSetIndex(set) == 0) {
    bediener.Mislukt("Bestandenset " + set + " staat niet in de lijst");
    return false;
  }
  if (omgang == Omgang::Lezen && IsSetNaam(set)) {
    // An absent file would be made.
    const SetPaden paden = SetPaden::Van(ini.DataDir(), set);
    for (const std::filesystem::path& pad : {paden.prs, paden.rlt, paden.plt, paden.opm}) {
      if (!Ontbreekt(pad)) continue;
      bediener.Mislukt("Bestandenset " + set + " is niet compleet: " + PadTekst(pad) +
                       " ontbreekt");
      return false;
    }
  }
  return true;
}

// Nobody is there to be asked when it opens.
bool Sessie::IsVrij(const std::string& set, Omgang omgang, bool toch) {
  if (!IsSetNaam(set)) return true;
  Bestandenset bestanden;
  bestanden.ZetJournaal({.tijd = [] { return std::string(); }, .bijVreemd = {}, .map = {}});
  // What does not open is told by the window.
  if (bestanden.OpenSet(SetPaden::Van(Hoofd().Ini.DataDir(), set))) return true;
  const auto onvoltooid = bestanden.HetJournaal()->Onvoltooid();
  if (omgang == Omgang::Lezen && !onvoltooid) return true;
  const bool bezet = !bestanden.NeemInGebruik();
  if (bezet && !(toch && omgang == Omgang::Schrijven)) {
    bediener.Mislukt("Bestandenset " + set + " is al in gebruik" +
                     (omgang == Omgang::Schrijven ? "; met --toch opent hij toch" : ""));
    return false;
  }
  if (onvoltooid) {
    bediener.Mislukt(OnvoltooidTekst(*onvoltooid) + "\nlb77-cli herstel " + set +
                     " maakt haar ongedaan, lb77-cli herstel " + set +
                     " --behoud laat staan wat er staat");
    return false;
  }
  if (bezet) bediener.HoudKlaar({}, Antwoord::Ja);
  return true;
}

// The main window opens the set that the settings name.
void Sessie::KiesSet(const std::string& set, Omgang omgang) {
  IniClass& ini = Hoofd().Ini;
  ini.IniZet("Systeem", "Set", set);
  ini.IniZet("Systeem", "SetOms", ini.BestandenSetOms(ini.BestandenSetIndex(set)));
  if (omgang == Omgang::Lezen) Menu().ZetGebruik(SetGebruik::Lezen);
}

int Sessie::InVenster(const InMenu& inMenu) {
  bool gedaan = false;
  bediener.Bij("MenuWindow", [this, &inMenu, &gedaan](Formulier& menu) {
    gedaan = true;
    Werk werk(bediener, menu);
    inMenu(werk);
  });
  programma_.Voer();
  if (!gedaan) {
    bediener.Mislukt("De opdracht is niet uitgevoerd");
  } else if (Hoofd().Ini.EindeGevraagd()) {
    bediener.Mislukt("De instellingen zijn niet bewaard");
  }
  return bediener.Status();
}

int Sessie::Voer(std::string_view naam, Omgang omgang, const InMenu& inMenu, bool toch) {
  if (!Start()) return 1;
  const std::string set = Hoofdletters(naam);
  if (!Kent(set, omgang) || !IsVrij(set, omgang, toch)) return bediener.Status();
  KiesSet(set, omgang);
  return InVenster([this, &inMenu](Werk& menu) {
    // Why the set could not be opened has been told.
    if (Hoofd().SetActief()) {
      inMenu(menu);
    } else {
      bediener.Mislukt("De opdracht is niet uitgevoerd");
    }
  });
}

int Sessie::Voer(const InMenu& inMenu) {
  return Start() ? InVenster(inMenu) : 1;
}

int Sessie::VoerZonderVenster(const std::function<void()>& doe) {
  if (!Start()) return 1;
  doe();
  return bediener.Status();
}

}  // namespace lb77
