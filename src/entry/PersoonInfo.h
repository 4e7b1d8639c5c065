// The one-paragraph summary of a person that the boxes of the search show.
#pragma once

#include <cstdint>
#include <string>

namespace lb77 {

class Hoofdmodule;

// The person with his events and partners, told by the settings of the session. HuidigPersoonNr is
// `nr` after it; all record buffers may change.
[[nodiscard]] std::string PersoonInfo(Hoofdmodule& hoofd, std::int16_t nr);

}  // namespace lb77
