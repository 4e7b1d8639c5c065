// Whom the number of a record means, for the dialogs that mend numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/BestandSoort.h"
#include "store/Gegevens.h"

namespace lb77 {

// A person by his names, a relation by those of both partners: "<onbekend>" without a name, "?????"
// for a record that can't be read, empty for 0. Precondition: persons or relations. The buffers of
// both change.
[[nodiscard]] std::string RecordNaam(const Gegevens& gegevens, BestandSoort bestand,
                                     std::int16_t nr);

// How a remark's rubric is headed where links are mended; empty for a number that is none.
[[nodiscard]] std::string_view CorrRubriekNaam(std::int16_t rubriek);

}  // namespace lb77
