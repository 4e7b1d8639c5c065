#include "store/PlaatsIndex.h"

#include <utility>

#include "store/PlaatsVelden.h"
#include "text/Dos437.h"
#include "text/Tekens.h"

namespace lb77 {

std::string PlaatsIndex::Sleutel(std::string_view windows) {
  const std::string dos = WindowsNaarDos(Trim(windows)).substr(0, plaatsveld::Naam.breedte);
  return Hoofdletters(DosNaarWindows(Trim(dos)));
}

void PlaatsIndex::Wis() {
  namen_.clear();
  nummers_.clear();
  storingen_.clear();
}

std::int16_t PlaatsIndex::Hoogste() const {
  return static_cast<std::int16_t>(namen_.size() + 1);
}

void PlaatsIndex::Voeg(std::string sleutel) {
  const auto nr = static_cast<std::int16_t>(Hoogste() + 1);
  nummers_[sleutel].push_back(nr);
  namen_.push_back(std::move(sleutel));
}

void PlaatsIndex::VoegStoring(PlaatsStoring::Soort soort) {
  storingen_.push_back({static_cast<std::int16_t>(Hoogste() + 1), soort});
  namen_.emplace_back();
}

std::span<const std::int16_t> PlaatsIndex::Gelijke(const std::string& sleutel) const {
  const auto plek = nummers_.find(sleutel);
  if (plek == nummers_.end()) return {};
  return plek->second;
}

std::vector<std::int16_t> PlaatsIndex::Beginnend(std::string_view begin) const {
  std::vector<std::int16_t> gevonden;
  for (std::size_t i = 0; i < namen_.size(); ++i) {
    if (BegintMet(namen_[i], begin)) gevonden.push_back(static_cast<std::int16_t>(i + 2));
  }
  return gevonden;
}

}  // namespace lb77
