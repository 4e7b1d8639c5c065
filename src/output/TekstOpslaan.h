// Saving a text that was shown or made, where the user says.
#pragma once

#include <filesystem>
#include <string_view>

#include "forms/Gesprek.h"
#include "output/Tekstpaginas.h"

namespace lb77 {

// The name that is proposed for a text of this title: without what a name may not hold on every system.
[[nodiscard]] std::filesystem::path Opslagnaam(std::string_view titel, std::string_view uitgang);

// Asks by `vraag` where the text file is to go, and copies it there. Tells of success and of failure;
// True when it was stored. On a desktop the name `naam` is proposed, if there is one.
[[nodiscard]] bool SlaTekstOp(Gesprek& gesprek, const std::filesystem::path& tekst,
                              const BestandsVraag& vraag, const std::filesystem::path& naam = {},
                              Tekencode code = Tekencode::Zelfde);

}  // namespace lb77
