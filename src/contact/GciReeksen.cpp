#include "contact/GciReeksen.h"

#include <utility>

#include "store/PlaatsLB77.h"

namespace lb77 {

bool GciReeksen::ReeksBij(std::string_view naam, std::int16_t plaats, std::int16_t jaar,
                          std::int16_t persoon) {
  if (naam.empty() || plaats <= 0 || plaats > kHoogstePlaats || jaar == 0) return true;
  const auto naamNr =
      namen_.try_emplace(std::string(naam), static_cast<std::uint32_t>(namen_.size()))
          .first->second;
  const std::uint64_t sleutel = (std::uint64_t{naamNr} << 32U) |
                                (std::uint64_t{static_cast<std::uint16_t>(plaats)} << 16U) |
                                static_cast<std::uint16_t>(jaar);
  const auto [plek, nieuw] = opSleutel_.try_emplace(sleutel, tabel_.size());
  if (nieuw) {
    if (tabel_.size() >= hoogstens_) return false;
    tabel_.push_back({std::string(naam), plaats, jaar, jaar, 1, persoon});
    return true;
  }
  GciReeks& reeks = tabel_[plek->second];
  if (reeks.laatste == persoon) return true;
  // A set has no more persons than fit, and each counts once.
  reeks.aantal = TelOp(reeks.aantal, 1).value_or(reeks.aantal);
  reeks.laatste = persoon;
  return true;
}

std::vector<GciReeks> GciReeksen::Neem() {
  namen_.clear();
  opSleutel_.clear();
  return std::exchange(tabel_, {});
}

}  // namespace lb77
