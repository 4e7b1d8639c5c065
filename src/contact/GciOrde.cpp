#include "contact/GciOrde.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string_view>
#include <tuple>
#include <utility>

#include "contact/GciGebied.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

// '_' comes behind all capitals.
constexpr std::string_view kNederlandAchteraan = "_NL";

// Where each row of the table of places comes among the others; rows that say the same by number.
std::vector<int> Volgorde(const GciPlaatsen& plaatsen) {
  const auto sleutel = [&](int rij) {
    const std::string_view land = plaatsen.Land(rij);
    return std::tuple(land == kNederland ? kNederlandAchteraan : land, plaatsen.Prov(rij),
                      plaatsen.Naam(rij), rij);
  };
  std::vector<int> rijen(static_cast<std::size_t>(plaatsen.Aantal()));
  std::iota(rijen.begin(), rijen.end(), 1);
  std::ranges::sort(rijen, {}, sleutel);
  std::vector<int> plek(rijen.size() + 1);
  for (std::size_t i = 0; i < rijen.size(); ++i) {
    plek[static_cast<std::size_t>(rijen[i])] = static_cast<int>(i);
  }
  return plek;
}

bool Hoort(const GciReeks& een, const GciReeks& ander, int maxGat) {
  return een.naam == ander.naam && een.plaats == ander.plaats && ander.van - een.tot <= maxGat;
}

}  // namespace

void OrdenReeksen(std::vector<GciReeks>& reeksen, const GciPlaatsen& plaatsen) {
  const std::vector<int> plek = Volgorde(plaatsen);
  std::vector<std::pair<std::string, GciReeks>> rijen;
  rijen.reserve(reeksen.size());
  for (GciReeks& reeks : reeksen) rijen.emplace_back(Hoofdletters(reeks.naam), std::move(reeks));
  std::ranges::stable_sort(rijen, {}, [&](const auto& rij) {
    const GciReeks& reeks = rij.second;
    return std::tuple(std::string_view(rij.first), plek[static_cast<std::size_t>(reeks.plaats)],
                      std::string_view(reeks.naam), reeks.van, reeks.tot);
  });
  std::ranges::transform(rijen, reeksen.begin(), [](auto& rij) { return std::move(rij.second); });
}

bool VoegReeksenSamen(std::vector<GciReeks>& reeksen, int maxGat) {
  std::vector<GciReeks> uit;
  for (GciReeks& reeks : reeksen) {
    if (uit.empty() || !Hoort(uit.back(), reeks, maxGat)) {
      uit.push_back(std::move(reeks));
      continue;
    }
    GciReeks& vorige = uit.back();
    const auto aantal = TelOp(vorige.aantal, reeks.aantal);
    if (!aantal) return false;
    vorige.aantal = *aantal;
    vorige.tot = std::max(vorige.tot, reeks.tot);
  }
  reeksen = std::move(uit);
  return true;
}

void ZeefReeksen(std::vector<GciReeks>& reeksen, const GciOpties& opties) {
  std::erase_if(reeksen, [&](GciReeks& reeks) {
    if (reeks.van > opties.maxJaartal) return true;
    if (reeks.tot > opties.maxJaartal) reeks.tot = static_cast<std::int16_t>(opties.maxJaartal);
    return reeks.aantal < opties.aantalPersonen || reeks.tot - reeks.van < opties.minJaren;
  });
}

void ZetHoofdletters(std::vector<GciReeks>& reeksen) {
  for (GciReeks& reeks : reeksen) reeks.naam = Hoofdletters(reeks.naam);
}

}  // namespace lb77
