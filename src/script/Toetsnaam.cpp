#include "script/Toetsnaam.h"

#include <array>
#include <string>

#include "text/Getallen.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

struct Rij {
  std::string_view naam;
  int code;
  char teken = 0;
};

constexpr std::array kToetsen = {
    Rij{"Enter", toets::kEnter, '\n'}, Rij{"NumEnter", toets::kNumEnter, '\n'},
    Rij{"Escape", toets::kEscape},     Rij{"Tab", toets::kTab},
    Rij{"Space", toets::kSpatie, ' '}, Rij{"Insert", toets::kInsert},
    Rij{"Delete", toets::kDelete},     Rij{"Home", toets::kHome},
    Rij{"End", toets::kEnd},           Rij{"Left", toets::kLinks},
    Rij{"Right", toets::kRechts},      Rij{"Up", toets::kOmhoog},
    Rij{"Down", toets::kOmlaag},       Rij{"PageUp", toets::kPageUp},
    Rij{"PageDown", toets::kPageDown}, Rij{"NumLock", toets::kNumLock},
};

// "F1" to "F12" and "Num0" to "Num9": a word and a number without zeros in front. -1 when it is
// another name.
int Genummerd(std::string_view naam, std::string_view woord, int eerste, int laatste) {
  if (!BegintMet(naam, woord)) return -1;
  const std::string_view cijfers = naam.substr(woord.size());
  const int nummer = Getalwaarde(cijfers);
  return cijfers == GetalTekst(nummer) && nummer >= eerste && nummer <= laatste ? nummer : -1;
}

std::optional<ToetsGebeurtenis> BijNaam(std::string_view naam) {
  for (const Rij& rij : kToetsen) {
    if (rij.naam == naam) return ToetsGebeurtenis{.code = rij.code, .teken = rij.teken};
  }
  if (const int nummer = Genummerd(naam, "Num", 0, 9); nummer >= 0) {
    return ToetsGebeurtenis{.code = toets::kNum0 + nummer,
                            .teken = static_cast<char>('0' + nummer)};
  }
  if (const int nummer = Genummerd(naam, "F", 1, 12); nummer >= 0) {
    return ToetsGebeurtenis{.code = toets::kF1 + nummer - 1};
  }
  return std::nullopt;
}

}  // namespace

std::optional<ToetsGebeurtenis> ToetsVanNaam(std::string_view naam) {
  constexpr std::string_view kShift = "Shift+";
  if (BegintMet(naam, kShift)) {
    auto toets = BijNaam(naam.substr(kShift.size()));
    if (toets) toets->shift = true;
    return toets;
  }
  if (auto toets = BijNaam(naam)) return toets;
  const auto teken = Utf8NaarWindows(naam);
  if (!teken || teken->size() != 1) return std::nullopt;
  return ToetsVanTeken(teken->front());
}

}  // namespace lb77
