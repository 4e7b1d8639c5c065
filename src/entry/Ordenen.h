// The order of a list of links, by date or by hand: the same for children and for relations.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "entry/Koppeltabel.h"
#include "store/TabUitslag.h"

namespace lb77 {

class Gesprek;

// How far a list could be read: all of it, its main record alone, or nothing.
enum class Lijststaat { Heel, NietHeel, Geen };
[[nodiscard]] Lijststaat StaatVan(const TabUitslag& uitslag);

// What tells one list from the other. Each function gives False after a failure, which is told here
// unless it told the user itself.
struct OrdenTaak {
  Plaatsen plaatsen;
  std::function<Lijststaat()> lees;  // fills the places
  std::function<bool(std::int16_t aantal)> sorteer;
  std::function<bool()> schrijf;
  std::function<std::optional<std::int16_t>()> vraagWie;
  std::function<std::int16_t()> vraagPlaats;  // from 1; -1 for none
  std::string_view nietErin;                  // said of one that is not in the list
};

// False when the list is to be sorted by date and its main record can't be read.
[[nodiscard]] bool Orden(Gesprek& gesprek, const OrdenTaak& taak);

}  // namespace lb77
