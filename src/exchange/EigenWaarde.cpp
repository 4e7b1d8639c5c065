#include "exchange/EigenWaarde.h"

#include <algorithm>
#include <string>

#include "text/Dos437.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

struct Verboden {
  std::string_view veld;
  std::string_view begin;
};
constexpr Verboden kVerboden[] = {
    {"GebCorr", "Z"},  // a continuation record
    {"OvlCorr", "Z"},  {"HuwCorr", "Z"},
    {"Geslacht", "X"},  // what stands for a record that was not read
    {"HuwCorr", "X"},  {"Provcode", "&%"},
};

}  // namespace

bool MagInVeld(std::string_view veld, std::string_view windows) {
  const std::string opgeslagen = WindowsNaarDos(Trim(windows));
  return std::ranges::none_of(kVerboden, [&](const Verboden& rij) {
    return rij.veld == veld && opgeslagen.starts_with(rij.begin);
  });
}

std::size_t TekstBreedte(std::span<const Veld> velden, std::string_view naam) {
  const auto veld = std::ranges::find(velden, naam, &Veld::naam);
  const bool tekst = veld != velden.end() && veld->soort == VeldSoort::Tekst;
  return tekst ? veld->breedte : std::string_view::npos;
}

}  // namespace lb77
