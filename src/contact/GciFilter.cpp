#include "contact/GciFilter.h"

#include <algorithm>
#include <string_view>

#include "text/Tekens.h"

namespace lb77 {
namespace {

std::string Begin(std::string_view naam) {
  naam = Trim(naam);
  if (naam.ends_with('*')) naam = Trim(naam.substr(0, naam.size() - 1));
  return Hoofdletters(naam);
}

bool Is(std::string_view code, std::string_view gevraagd) {
  return Trim(gevraagd).empty() || GelijkZonderKast(code, Trim(gevraagd));
}

// The filter, ready for many rows.
class Zeefje {
 public:
  Zeefje(const GciPlaatsen& plaatsen, const GciFilter& filter)
      : plaatsen_(plaatsen), filter_(filter), begin_(Begin(filter.naam)) {}

  [[nodiscard]] bool Past(int rij) const {
    if (!filter_.aan) return true;
    return Is(plaatsen_.Land(rij), filter_.land) && Is(plaatsen_.Prov(rij), filter_.prov) &&
           Hoofdletters(plaatsen_.Naam(rij)).starts_with(begin_);
  }

 private:
  const GciPlaatsen& plaatsen_;
  const GciFilter& filter_;
  std::string begin_;
};

}  // namespace

std::vector<std::int16_t> RijenVanaf(const GciPlaatsen& plaatsen, const GciFilter& filter,
                                     int vanaf, std::size_t hoogstens) {
  const Zeefje zeefje(plaatsen, filter);
  std::vector<std::int16_t> rijen;
  for (int rij = vanaf; rij <= plaatsen.Aantal() && rijen.size() < hoogstens; ++rij) {
    if (zeefje.Past(rij)) rijen.push_back(static_cast<std::int16_t>(rij));
  }
  return rijen;
}

std::vector<std::int16_t> RijenVoor(const GciPlaatsen& plaatsen, const GciFilter& filter, int vanaf,
                                    std::size_t hoogstens) {
  const Zeefje zeefje(plaatsen, filter);
  std::vector<std::int16_t> rijen;
  for (int rij = vanaf - 1; rij >= 1 && rijen.size() < hoogstens; --rij) {
    if (zeefje.Past(rij)) rijen.push_back(static_cast<std::int16_t>(rij));
  }
  std::ranges::reverse(rijen);
  return rijen;
}

}  // namespace lb77
