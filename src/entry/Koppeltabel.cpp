#include "entry/Koppeltabel.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "text/Datum.h"

namespace lb77 {

void Ontdubbel(Plaatsen plaatsen) {
  for (auto een = plaatsen.begin(); een != plaatsen.end(); ++een) {
    std::replace(een + 1, plaatsen.end(), *een, std::int16_t{0});
  }
}

void Verdicht(Plaatsen plaatsen) {
  std::stable_partition(plaatsen.begin(), plaatsen.end(), [](std::int16_t nr) { return nr != 0; });
}

std::int16_t AantalBezet(Plaatsen plaatsen) {
  return static_cast<std::int16_t>(std::find(plaatsen.begin(), plaatsen.end(), std::int16_t{0}) -
                                   plaatsen.begin());
}

std::int16_t PlaatsVan(Plaatsen plaatsen, std::int16_t nr) {
  const auto plaats = std::find(plaatsen.begin(), plaatsen.end(), nr);
  if (plaats == plaatsen.end()) return 0;
  return static_cast<std::int16_t>(plaats - plaatsen.begin() + 1);
}

void HaalUit(Plaatsen plaatsen, std::int16_t plaats) {
  std::shift_left(plaatsen.begin() + plaats - 1, plaatsen.end(), 1);
  plaatsen.back() = 0;
}

void Verzet(Plaatsen plaatsen, std::int16_t van, std::int16_t naar) {
  const auto een = plaatsen.begin() + van - 1;
  const auto doel = plaatsen.begin() + std::min(naar, AantalBezet(plaatsen)) - 1;
  if (een < doel) {
    std::rotate(een, een + 1, doel + 1);
  } else {
    std::rotate(doel, een, een + 1);
  }
}

bool WijzigHuwtab(std::int16_t relatie, Huwtab& tab, TabelActie actie) {
  if (actie == TabelActie::Geen) return false;
  const Plaatsen plaatsen = PlaatsenVan(tab);
  const bool voeg = actie == TabelActie::Voeg;
  const std::int16_t plaats = PlaatsVan(plaatsen, voeg ? std::int16_t{0} : relatie);
  if (plaats == 0) return false;
  if (voeg) {
    plaatsen[static_cast<std::size_t>(plaats) - 1] = relatie;
  } else {
    HaalUit(plaatsen, plaats);
  }
  return true;
}

bool Sorteer(Plaatsen plaatsen, std::int16_t aantal, const Sorteersleutel& sleutel) {
  if (aantal < 2) return true;
  const Plaatsen deel = plaatsen.first(static_cast<std::size_t>(aantal));
  std::vector<std::int32_t> sleutels;
  for (const std::int16_t nr : deel) {
    const std::optional<std::int32_t> datum = nr == 0 ? 0 : sleutel(nr);
    if (!datum) return false;
    sleutels.push_back(*datum);
  }
  // kept: an exchange sort, which decides the order of equal dates.
  for (std::size_t i = 0; i + 1 < deel.size(); ++i) {
    for (std::size_t j = i + 1; j < deel.size(); ++j) {
      if (sleutels[i] <= sleutels[j]) continue;
      std::swap(sleutels[i], sleutels[j]);
      std::swap(deel[i], deel[j]);
    }
  }
  return true;
}

bool SorteerKindtab(PersoonLB77& persoon, Kindtab& tab, std::int16_t aantal) {
  return Sorteer(PlaatsenVan(tab), aantal, [&](std::int16_t nr) -> std::optional<std::int32_t> {
    if (!persoon.Lees(nr)) return std::nullopt;
    return persoon.GebJaar() >= 1 ? persoon.GebDatum() : persoon.DoopDatum();
  });
}

bool SorteerHuwtab(RelatieLB77& relatie, Huwtab& tab, std::int16_t aantal) {
  return Sorteer(PlaatsenVan(tab), aantal, [&](std::int16_t nr) -> std::optional<std::int32_t> {
    if (!relatie.Lees(nr)) return std::nullopt;
    if (relatie.WetHuwJaar() >= 1) return relatie.WHuwDatum();
    return relatie.KHuwJaar() >= 1 ? relatie.KHuwDatum() : relatie.OtrDatum();
  });
}

}  // namespace lb77
