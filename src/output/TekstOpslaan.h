// Saving a text that was shown or made, where the user says.
#pragma once

#include <filesystem>

#include "forms/Gesprek.h"
#include "output/Tekstpaginas.h"

namespace lb77 {

// Asks by `vraag` where the text file is to go, and copies it there. Tells of success and of failure;
// True when it was stored. On a desktop the name `naam` is proposed, if there is one.
[[nodiscard]] bool SlaTekstOp(Gesprek& gesprek, const std::filesystem::path& tekst,
                              const BestandsVraag& vraag, const std::filesystem::path& naam = {},
                              Tekencode code = Tekencode::Zelfde);

}  // namespace lb77
