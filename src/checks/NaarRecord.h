// From a finding to where it is mended.
#pragma once

#include "checks/Bevinding.h"

namespace lb77 {

class Hoofdmodule;

// Shows the card of a person or relation, and whatever the user goes to from there; a place on its
// page of the list of places. Says why when there is none.
void ToonKaartVan(Hoofdmodule& hoofd, const RecordPlek& plek);

}  // namespace lb77
