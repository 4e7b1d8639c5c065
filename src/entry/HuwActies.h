// What the card of a person does with his relations.
#pragma once

#include <cstdint>

namespace lb77 {

class Hoofdmodule;

// Each asks what it needs and is one action of the journal. HuidigPersoonNr is `persoon` afterwards,
// unless its function says otherwise; the buffers have changed, and the card loads itself again.

// Sorts the relations, or moves one. HuidigPersoonNr is -1 when the person whose relations are to
// be sorted can't be read.
void OrdenRelaties(Hoofdmodule& hoofd, std::int16_t persoon);
// Asks a partner and makes a relation, which may be one without a partner.
void NieuweRelatieVan(Hoofdmodule& hoofd, std::int16_t persoon);

}  // namespace lb77
