// Persons and families as values: what a report needs of a record before the next read takes the
// buffer.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "output/Gebeurtenis.h"
#include "store/Codes.h"

namespace lb77 {

struct PersoonBlik {
  std::int16_t nr = 0;
  std::string voornaam;
  std::string achternaam;
  std::string geslacht;
  std::string beroep;
  std::int16_t relNrOuders = 0;
  std::int16_t opmRecord = 0;
  std::int16_t opmCode = 0;
  Levensloop leven;

  [[nodiscard]] bool IsMan() const { return IsCode(geslacht, lb77::geslacht::kMan); }
};

// One relation, seen from one of its partners.
struct GezinBlik {
  std::int16_t relNr = 0;
  int volgNr = 1;        // its place among the person's relations, from 1
  bool gelezen = false;  // False: the record could not be read, and nothing below is known
  std::int16_t man = 0;
  std::int16_t vrouw = 0;
  std::int16_t partner = 0;  // of the person; 0 for none
  std::int16_t opmRecord = 0;
  std::int16_t opmCode = 0;
  Verbintenis verbintenis;

  [[nodiscard]] bool PartnerIsMan() const { return partner == man; }
};

// The children of a relation, by their slot from 1 to 29; 0 is a free slot.
struct KinderenBlik {
  Kindtab plaatsen{};
  bool heel = false;  // False: a record of the list could not be read

  // Those that are there, in order.
  [[nodiscard]] std::vector<std::int16_t> Lijst() const;
};

// The relations of a person, in order, without free slots.
struct GezinnenBlik {
  std::vector<GezinBlik> lijst;
  bool heel = false;  // False: a record of the person's list could not be read
};

// Reads person `nr`; nothing when he can't be read. The buffer holds him afterwards.
[[nodiscard]] std::optional<PersoonBlik> LeesPersoonBlik(PersoonLB77& persoon, std::int16_t nr);
// The person in the buffer.
[[nodiscard]] PersoonBlik BlikVan(const PersoonLB77& persoon, std::int16_t nr);

// The relation in the buffer, seen from person `nr`, a man or not.
[[nodiscard]] GezinBlik GezinVan(const RelatieLB77& relatie, std::int16_t relNr, std::int16_t nr,
                                 bool isMan);
// Reads person `nr` and his relations. Nothing when he can't be read; a relation that can't be read
// is in the list. Both buffers change.
[[nodiscard]] std::optional<GezinnenBlik> LeesGezinnen(PersoonLB77& persoon, RelatieLB77& relatie,
                                                       std::int16_t nr);
// Reads the children of relation `relNr`. HuidigRelatieNr and the buffer may stand on its
// continuation afterwards.
[[nodiscard]] KinderenBlik LeesKinderen(RelatieLB77& relatie, std::int16_t relNr);

}  // namespace lb77
