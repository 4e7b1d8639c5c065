#include "entry/NaamFilter.h"

#include "text/Tekens.h"

namespace lb77 {

namespace {

bool Past(std::string_view filter, std::string_view naam) {
  filter = Trim(filter);
  if (filter.empty()) return true;
  if (!EindigtOp(filter, "*")) return naam == filter;
  filter.remove_suffix(1);
  return BegintMet(naam, filter);
}

}  // namespace

bool NaamFilter::LaatDoor(std::string_view voornaam, std::string_view achternaam) const {
  return !FilterAan || (Past(FilterVoorNm, voornaam) && Past(FilterAchterNm, achternaam));
}

}  // namespace lb77
