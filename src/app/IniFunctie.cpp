#include "app/IniFunctie.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace lb77 {

namespace {

// The settings keep a view of these names.
constexpr std::array<std::string_view, 8> kToetsen = {"F1", "F2", "F3", "F4",
                                                      "F5", "F6", "F7", "F8"};

}  // namespace

IniFunctie::IniFunctie(Hoofdmodule& hoofd)
    : InstelFormulier("IniFunctie", "Systeem Instellingen - Functietoetsen", hoofd) {
  ZetEersteVeld(FtoetsTekst(1));
  FtoetsTekst.Elk([this](int nummer, Tekstvak& vak) {
    const std::string_view toets = kToetsen[static_cast<std::size_t>(nummer - 1)];
    vak.ZetBijschrift("SHIFT-" + std::string(toets) + ":");
    Koppel(vak, "Funktietoetsen", toets);
  });
  KoppelKnoppen(OKButton, BackButton);
}

}  // namespace lb77
