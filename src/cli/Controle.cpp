// `controle`: the checks of the files, one of them or all four.
#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "checks/ControleForm.h"
#include "cli/Levering.h"
#include "cli/Opdrachten.h"
#include "cli/Sessie.h"
#include "cli/Werkmap.h"
#include "output/ToonTekst.h"
#include "text/Pad.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

struct ControleRij {
  std::string_view woord;
  std::string_view menuKeuze;
  const ControleSoort* soort;
};

constexpr ControleRij kControles[] = {
    {"personen", "ContrPrs", &kControlePrs},
    {"relaties", "ContrRel", &kControleRel},
    {"plaatsen", "ContrPlts", &kControlePlts},
    {"opmerkingen", "ContrOpm", &kControleOpm},
};

// The checks that a word asks for: all of them for "", none for one that is not known.
std::vector<ControleRij> Gevraagd(std::string_view woord) {
  std::vector<ControleRij> uit;
  std::ranges::copy_if(kControles, std::back_inserter(uit), [woord](const ControleRij& rij) {
    return woord.empty() || rij.woord == woord;
  });
  return uit;
}

bool HeeftKeuze(const ControleRij& rij, std::string_view naam) {
  return std::ranges::any_of(rij.soort->opties,
                             [naam](const ControleOptie& optie) { return optie.naam == naam; });
}

std::string ZieTekst(const std::filesystem::path& verslag) {
  return " (zie " + PadTekst(verslag) + ")";
}

// One run of the command: the reports one behind the other.
class Ronde {
 public:
  Ronde(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten)
      : omgeving_(omgeving),
        argumenten_(argumenten),
        rijen_(Gevraagd(argumenten.woorden[1])),
        sessie_(omgeving, Instelling::VoorNu) {}

  // 1 too when something was found.
  [[nodiscard]] int Voer() {
    sessie_.bediener.Bij("ToonTekst", [this](Formulier& form) { NeemVerslag(form); });
    for (const ControleRij& rij : rijen_) {
      sessie_.bediener.Bij(rij.soort->naam, [this, rij](Formulier& form) { VulIn(rij, form); });
    }
    const int status =
        sessie_.Voer(argumenten_.woorden[0], Omgang::Lezen, [this](Werk& menu) { InMenu(menu); });
    return status == 0 && gevonden_ > 0 ? 1 : status;
  }

 private:
  void InMenu(Werk& menu);
  void VulIn(const ControleRij& rij, Formulier& form);
  void NeemVerslag(const Formulier& form);
  [[nodiscard]] bool IsVoor(const ControleRij& rij, std::string_view naam) const;

  const Omgeving& omgeving_;
  const OpdrachtArgumenten& argumenten_;
  std::vector<ControleRij> rijen_;
  Sessie sessie_;
  std::ofstream verslag_;
  bool getoond_ = false;
  bool geweigerd_ = false;  // a choice that was told: no report, rather than a part of one
  std::size_t gevonden_ = 0;
};

void Ronde::InMenu(Werk& menu) {
  if (!MagNaar(sessie_, omgeving_, argumenten_)) return;
  const Werkmap werkmap(sessie_.Hoofd().Ini.TempDir());
  sessie_.Hoofd().instellingen.tijdelijk = werkmap.Pad();
  const std::filesystem::path pad = werkmap.Pad() / "CONTROLE.TMP";
  verslag_.open(pad, std::ios::binary);
  for (const ControleRij& rij : rijen_) {
    menu.Kies(rij.menuKeuze);
    if (geweigerd_) return;
  }
  verslag_.close();
  if (!verslag_) {
    sessie_.bediener.Mislukt("Fout bij het schrijven van " + PadTekst(pad));
  } else if (getoond_) {
    Lever(pad, sessie_.bediener, omgeving_, argumenten_);
  }
}

// A choice goes to the dialogs that have it; one that none has, to the first, which says so.
bool Ronde::IsVoor(const ControleRij& rij, std::string_view naam) const {
  if (HeeftKeuze(rij, naam)) return true;
  const bool ergens =
      std::ranges::any_of(rijen_, [naam](const ControleRij& een) { return HeeftKeuze(een, naam); });
  return !ergens && rij.soort == rijen_.front().soort;
}

void Ronde::VulIn(const ControleRij& rij, Formulier& form) {
  Werk werk(sessie_.bediener, form);
  for (const std::string& zet : argumenten_.zet) {
    const std::size_t teken = std::min(zet.find('='), zet.size());
    const std::string naam = zet.substr(0, teken);
    if (!IsVoor(rij, naam)) continue;
    geweigerd_ = !werk.Zet(naam, zet.substr(std::min(teken + 1, zet.size())));
    if (geweigerd_) return;
  }
  werk.Druk("OKButton");
  if (const auto* controle = dynamic_cast<const ControleForm*>(&form)) {
    gevonden_ += controle->Aantal();
  }
}

// The head tells where the report lies: in the file of --uit, not in one that is gone afterwards.
void Ronde::NeemVerslag(const Formulier& form) {
  const auto* toon = dynamic_cast<const ToonTekst*>(&form);
  if (!toon) return;
  std::ifstream in(toon->UitvoerPad(), std::ios::binary);
  std::string tekst(std::istreambuf_iterator<char>(in), {});
  const std::string zie = ZieTekst(toon->UitvoerPad());
  if (const std::size_t waar = tekst.find(zie); waar != std::string::npos) {
    tekst.replace(waar, zie.size(), argumenten_.naar ? ZieTekst(*argumenten_.naar) : "");
  }
  verslag_ << tekst;
  getoond_ = true;
}

}  // namespace

int Controle(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  if (Gevraagd(argumenten.woorden[1]).empty()) {
    omgeving.fout << WindowsNaarUtf8(argumenten.woorden[1])
                  << ": personen, relaties, plaatsen of opmerkingen verwacht\n";
    return 2;
  }
  return Ronde(omgeving, argumenten).Voer();
}

}  // namespace lb77
