// What may be done to a link table in memory: the relations of a person, the children of a relation.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"

namespace lb77 {

// The places of a table, the first at index 0. A place that holds 0 is free.
using Plaatsen = std::span<std::int16_t>;

// Without the place 0 that a Huwtab or Kindtab does not use.
template <std::size_t N>
Plaatsen PlaatsenVan(std::array<std::int16_t, N>& tab) {
  return Plaatsen(tab).subspan(1);
}

// Of equal numbers only the first stays.
void Ontdubbel(Plaatsen plaatsen);

// Moves the numbers forward, in their order, so that the free places stand last.
void Verdicht(Plaatsen plaatsen);

// How many places stand before the first free one.
[[nodiscard]] std::int16_t AantalBezet(Plaatsen plaatsen);

// The place of a number, counted from 1; 0 when the table does not hold it.
[[nodiscard]] std::int16_t PlaatsVan(Plaatsen plaatsen, std::int16_t nr);

// Takes out what stands at a place, from 1; what stands behind it moves up.
void HaalUit(Plaatsen plaatsen, std::int16_t plaats);

// Moves what stands at place `van` to place `naar`, both from 1; a `naar` beyond the numbers is the
// last of them. The table has no gaps.
void Verzet(Plaatsen plaatsen, std::int16_t van, std::int16_t naar);

enum class TabelActie { Verwijder = -1, Geen = 0, Voeg = 1 };

// Puts the relation into the first free place, or takes it out. False when the table is full, the
// relation is not in it, or nothing was asked.
[[nodiscard]] bool WijzigHuwtab(std::int16_t relatie, Huwtab& tab, TabelActie actie);

// The date of a child or relation as jjjjmmdd; nothing when the record can't be read.
using Sorteersleutel = std::function<std::optional<std::int32_t>(std::int16_t nr)>;

// Sorts the first `aantal` places by an exchange sort; a free one counts as date 0. False when a
// record can't be read; the table is as it was then.
[[nodiscard]] bool Sorteer(Plaatsen plaatsen, std::int16_t aantal, const Sorteersleutel& sleutel);

// By birth, else baptism.
[[nodiscard]] bool SorteerKindtab(PersoonLB77& persoon, Kindtab& tab, std::int16_t aantal);
// By civil marriage, else church marriage, else banns.
[[nodiscard]] bool SorteerHuwtab(RelatieLB77& relatie, Huwtab& tab, std::int16_t aantal);

}  // namespace lb77
