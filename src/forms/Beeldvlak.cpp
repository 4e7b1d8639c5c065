#include "forms/Beeldvlak.h"

#include <algorithm>
#include <utility>

namespace lb77 {

Beeldvlak::Beeldvlak(Formulier& formulier, std::string_view naam, std::string_view leesnaam)
    : Lijst(formulier, BedieningSoort::Beeldvlak, naam, {}) {
  ZetLeesnaam(leesnaam);
}

void Beeldvlak::ZetBeeld(Tekening beeld) {
  const std::int16_t nr = GekozenNr();
  const int oud = Index();
  beeld_ = std::move(beeld);
  ++versie_;
  std::vector<std::string> namen;
  for (const Doel& doel : beeld_.doelen) namen.push_back(doel.naam);
  ZetRijen(std::move(namen));
  const auto& doelen = beeld_.doelen;
  if (oud >= 0 && oud < static_cast<int>(doelen.size()) &&
      doelen[static_cast<std::size_t>(oud)].nr == nr) {
    ZetIndex(oud);
    return;
  }
  const auto ergens = std::ranges::find(doelen, nr, &Doel::nr);
  if (nr != 0 && ergens != doelen.end()) ZetIndex(static_cast<int>(ergens - doelen.begin()));
}

std::int16_t Beeldvlak::GekozenNr() const {
  return Index() < 0 ? std::int16_t{0} : beeld_.doelen[static_cast<std::size_t>(Index())].nr;
}

}  // namespace lb77
