// The relations of a person with their partners, as cards and dialogs list them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lb77 {

class Gesprek;
class PersoonLB77;
class RelatieLB77;

struct HuwRegel {
  std::int16_t relatie = 0;
  std::int16_t partner = 0;  // 0: the relation has none, or can't be read
  std::string voornaam;
  std::string achternaam;
};

// At most five, in the order of the person's list, up to the first empty place. The partner is that
// of PartnerVan. A continuation record that can't be read is told (stop symbol), and
// what it holds is left out. The buffers of both classes change; HuidigPersoonNr is `persoonNr`.
[[nodiscard]] std::vector<HuwRegel> LeesHuwRegels(PersoonLB77& persoon, RelatieLB77& relatie,
                                                  Gesprek& gesprek, std::int16_t persoonNr);

}  // namespace lb77
