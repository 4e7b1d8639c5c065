#include "cli/Rapport.h"

#include <fstream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/Levering.h"
#include "cli/Personen.h"
#include "cli/Plaatsen.h"
#include "cli/Sessie.h"
#include "cli/Werkmap.h"
#include "output/Tekstpaginas.h"
#include "output/ToonTekst.h"
#include "pictures/BeeldForm.h"
#include "reporting/HTMLParam.h"
#include "reports/VerwantRapport.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

using Bladstapel = std::vector<std::vector<std::string>>;  // pages of lines

// One report on its way through its forms.
class Maker {
 public:
  Maker(const Rapport& rapport, const Omgeving& omgeving, const OpdrachtArgumenten& argumenten)
      : rapport_(rapport),
        omgeving_(omgeving),
        argumenten_(argumenten),
        sessie_(omgeving, argumenten.bewaar ? Instelling::VoorLater : Instelling::VoorNu) {
    argumenten_.woorden.resize(kMeesteWoorden);
  }

  [[nodiscard]] int Voer() {
    for (const RapportVorm& vorm : rapport_.vormen) {
      if (vorm.formulier.empty()) break;
      sessie_.bediener.Bij(vorm.formulier, [this, &vorm](Formulier& form) { VulIn(vorm, form); });
    }
    for (const std::string_view venster : {"ToonTekst", "VerwantRapport"}) {
      sessie_.bediener.Bij(venster, [this](Formulier& form) { NeemVerslag(form); });
    }
    if (rapport_.wandeling.loop) BereidWandelingVoor();
    return sessie_.Voer(argumenten_.woorden[0], Omgang::Lezen,
                        [this](Werk& menu) { InMenu(menu); });
  }

 private:
  void InMenu(Werk& menu) {
    if (!MagNaar(sessie_, omgeving_, argumenten_) || !VindPersonen() || !VindPlaatsen()) return;
    const Werkmap werkmap(sessie_.Hoofd().Ini.TempDir());
    sessie_.Hoofd().instellingen.tijdelijk = werkmap.Pad();
    menu.Kies(rapport_.menuKeuze);
    if (!afdruk_.empty()) NeemAfdruk(werkmap.Pad() / "AFDRUK.TMP");
    if (!getoond_ && sessie_.bediener.Status() == 0) {
      sessie_.bediener.Mislukt("Er is geen verslag gemaakt");
    }
  }

  [[nodiscard]] bool VindPersonen();
  [[nodiscard]] bool VindPlaatsen();
  void VulIn(const RapportVorm& vorm, Formulier& form);
  [[nodiscard]] bool VulKeuzen(const RapportVorm& vorm, Werk& werk, const Formulier& form);
  [[nodiscard]] bool Vul(Werk& werk, const Formulier& form, const VeldVulling& vulling);
  [[nodiscard]] bool VulLinks(Werk& werk, const Formulier& form);
  void BereidWandelingVoor();
  void NeemVerslag(Formulier& form);
  void NeemAfdruk(const std::filesystem::path& pad);
  void Lever(const std::filesystem::path& pad);

  const Rapport& rapport_;
  const Omgeving& omgeving_;
  OpdrachtArgumenten argumenten_;  // with numbers for the names of persons
  Sessie sessie_;
  Bladstapel afdruk_;
  bool getoond_ = false;
};

bool Maker::VindPersonen() {
  for (const RapportVorm& vorm : rapport_.vormen) {
    for (const VeldVulling& vulling : vorm.velden) {
      if (vulling.wat != Vulling::Persoon) continue;
      if (!VindPersoon(sessie_.Hoofd(), sessie_.bediener, argumenten_.woorden[vulling.woord])) {
        return false;
      }
    }
  }
  return true;
}

bool Maker::VindPlaatsen() {
  for (const RapportVorm& vorm : rapport_.vormen) {
    if (vorm.plaats.empty()) continue;
    const std::string begin = std::string(vorm.plaats) + "=";
    for (std::string& zet : argumenten_.zet) {
      if (!zet.starts_with(begin)) continue;
      std::string naam = zet.substr(begin.size());
      if (!VindPlaats(sessie_.Hoofd(), sessie_.bediener, vorm.formulier, naam)) return false;
      zet = begin + naam;
    }
  }
  return true;
}

void Maker::VulIn(const RapportVorm& vorm, Formulier& form) {
  Werk werk(sessie_.bediener, form);
  bool goed = true;
  for (const VeldVulling& vulling : vorm.velden) {
    if (vulling.wat == Vulling::Niets) break;
    if (!Vul(werk, form, vulling)) goed = false;
  }
  if (vorm.metZet && !VulKeuzen(vorm, werk, form)) goed = false;
  if (!goed) return;
  if (auto* beeld = dynamic_cast<BeeldForm*>(&form)) {
    if (beeld->MaakBestand()) Lever(beeld->Pad());
    return;
  }
  werk.Druk(vorm.knop);
}

// Of two forms with choices the first takes those that it shows, the last all that are left.
bool Maker::VulKeuzen(const RapportVorm& vorm, Werk& werk, const Formulier& form) {
  const auto later = [](const RapportVorm* een, const RapportVorm* eind) {
    return std::any_of(een + 1, eind, [](const RapportVorm& andere) { return andere.metZet; });
  };
  const bool laatste = !later(&vorm, rapport_.vormen.data() + rapport_.vormen.size());
  bool goed = true;
  std::vector<std::string> over;
  for (const std::string& zet : argumenten_.zet) {
    const std::size_t teken = std::min(zet.find('='), zet.size());
    const std::size_t achter = std::min(teken + 1, zet.size());
    const std::string naam = zet.substr(0, teken);
    const Bediening* const veld = form.Zoek(naam);
    if (!laatste && (!veld || !veld->Zichtbaar())) {
      over.push_back(zet);
    } else if (!werk.Zet(naam, zet.substr(achter))) {
      goed = false;
    }
  }
  if (!laatste) argumenten_.zet = std::move(over);
  return goed;
}

bool Maker::Vul(Werk& werk, const Formulier& form, const VeldVulling& vulling) {
  switch (vulling.wat) {
    case Vulling::Niets:
      break;
    case Vulling::Woord:
    case Vulling::Persoon:
      return werk.Zet(vulling.veld, argumenten_.woorden[vulling.woord]);
    case Vulling::Waarde:
      return werk.Zet(vulling.veld, vulling.waarde);
    case Vulling::Html:
      return werk.Zet(vulling.veld, argumenten_.html ? "Ja" : "Nee");
    case Vulling::Links:
      return VulLinks(werk, form);
  }
  return true;
}

bool Maker::VulLinks(Werk& werk, const Formulier& form) {
  const auto* links = dynamic_cast<const HTMLParam*>(&form);
  if (!links) return false;
  bool goed = true;
  for (const HTMLParam::Link& link : links->Links()) {
    const bool ingesteld = !sessie_.Hoofd().Ini.IniWaarde("INTERNET", link.tag).empty();
    if (!ingesteld && !werk.Zet(link.veld.Naam(), "")) goed = false;
  }
  return goed;
}

void Maker::NeemVerslag(Formulier& form) {
  if (const auto* toon = dynamic_cast<ToonTekst*>(&form)) {
    Lever(toon->UitvoerPad());
  } else if (dynamic_cast<VerwantRapport*>(&form)) {
    Lever(VerwantBestandenVan(sessie_.Hoofd()).verslag);
  }
}

void Maker::BereidWandelingVoor() {
  const Wandeling& wandeling = rapport_.wandeling;
  sessie_.bediener.Bij(wandeling.formulier, [this, &wandeling](Formulier& form) {
    wandeling.loop(sessie_.bediener, form);
  });
  sessie_.bediener.BijAfdruk([this](const Afdruk& afdruk) {
    afdruk_.insert(afdruk_.end(), afdruk.paginas.begin(), afdruk.paginas.end());
  });
}

// Each page has the lines of a sheet of paper, but for the last one.
void Maker::NeemAfdruk(const std::filesystem::path& pad) {
  std::ofstream uit(pad, std::ios::binary);
  for (std::vector<std::string>& pagina : afdruk_) {
    if (&pagina != &afdruk_.back()) pagina.resize(Tekstpaginas::kRegels);
    for (const std::string& regel : pagina) uit << regel << "\r\n";
  }
  uit.close();
  if (uit) {
    Lever(pad);
  } else {
    sessie_.bediener.Mislukt("Fout bij het schrijven van " + PadTekst(pad) + "\n" +
                             FoutVanStroom().tekst);
  }
}

void Maker::Lever(const std::filesystem::path& pad) {
  getoond_ = true;
  lb77::Lever(pad, sessie_.bediener, omgeving_, argumenten_);
}

}  // namespace

int MaakRapport(const Rapport& rapport, const Omgeving& omgeving,
                const OpdrachtArgumenten& argumenten) {
  return Maker(rapport, omgeving, argumenten).Voer();
}

}  // namespace lb77
