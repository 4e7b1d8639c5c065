// Saving a text that was shown or made, where the user says.
#pragma once

#include <filesystem>

#include "forms/Gesprek.h"

namespace lb77 {

// Asks by `vraag` where the text file is to go, and copies it there. Tells of success and of failure;
// True when it was stored.
[[nodiscard]] bool SlaTekstOp(Gesprek& gesprek, const std::filesystem::path& tekst,
                              const BestandsVraag& vraag);

}  // namespace lb77
