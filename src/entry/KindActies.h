// What the cards of children do with the children of a relation.
#pragma once

#include <cstdint>

namespace lb77 {

class Hoofdmodule;
class Koppelingen;

// Each asks what it needs and is one action of the journal. HuidigRelatieNr is `relatie` afterwards,
// unless its function says otherwise; the buffers have changed, and the card loads itself again.

// Asks a person and makes him a child of the relation; with other parents the user is asked first.
void VoegKindToe(Hoofdmodule& hoofd, std::int16_t relatie);
// kept: the same without a look at other parents, as children behind the fifteenth are added. A
// child that has them stays with them too, until the checks tell.
void VoegKindToeZonderVraag(Hoofdmodule& hoofd, std::int16_t relatie);
// Enters a new person who is a child of the relation from the start, with the surname of his father.
void VoerKindIn(Hoofdmodule& hoofd, std::int16_t relatie);
// Asks a child and takes him out of the relation.
// kept: behind the fifteenth child the prompt is the one for adding (`metKindErbij`).
void HaalKindWeg(Hoofdmodule& hoofd, std::int16_t relatie, bool metKindErbij);
// Sorts the children, or moves one. HuidigRelatieNr is -1 when the relation to be sorted can't be
// read.
void OrdenKinderen(Hoofdmodule& hoofd, std::int16_t relatie);

// The links of the records of the session.
[[nodiscard]] Koppelingen Koppelwerk(Hoofdmodule& hoofd);

}  // namespace lb77
