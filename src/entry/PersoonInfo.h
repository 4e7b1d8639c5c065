// The one-paragraph summary of a person that the boxes of the search show.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/Gegevens.h"

namespace lb77 {

// The person with his events and partners; `toonTrouw` is that of the settings. HuidigPersoonNr is
// `nr` after it; all record buffers may change.
[[nodiscard]] std::string PersoonInfo(const Gegevens& gegevens, std::string_view toonTrouw,
                                      std::int16_t nr);

}  // namespace lb77
