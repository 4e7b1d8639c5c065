#include "forms/Gesprek.h"

#include <algorithm>

#include "forms/Formulier.h"

namespace lb77 {

bool StaatErIets(const std::vector<std::string>& pagina) {
  return std::ranges::any_of(pagina, [](const std::string& regel) {
    return regel.find_first_not_of(" \t") != std::string::npos;
  });
}

void Gesprek::ToonModaal(Formulier& formulier) {
  if (!formulier.Laad()) return;
  HaalGeslotenWeg();
  Open(formulier);
  getoond_.push_back({&formulier});
  try {
    formulier.Activeer();
    if (!formulier.Gesloten() && !formulier.Verborgen()) Voer(formulier);
  } catch (...) {
    RuimBovenste();  // no window may outlive its form
    throw;
  }
  RuimBovenste();
  formulier.Beeindig();
}

std::optional<std::string> Gesprek::MaakPdf(const std::filesystem::path&, const Tekening&,
                                            const Vellen&) {
  return "Een PDF wordt alleen in het venster van LB77 gemaakt.";
}

void Gesprek::HaalWeg(Getoond& getoond) {
  if (!std::exchange(getoond.weg, true)) Dicht(*getoond.formulier);
}

void Gesprek::HaalGeslotenWeg() {
  for (auto een = getoond_.rbegin(); een != getoond_.rend(); ++een) {
    if (een->formulier->Gesloten()) HaalWeg(*een);
  }
}

void Gesprek::RuimBovenste() {
  HaalWeg(getoond_.back());
  Vergeet(*getoond_.back().formulier);
  getoond_.pop_back();
}

}  // namespace lb77
