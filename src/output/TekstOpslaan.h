// Saving a text that was shown or made, where the user says.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "app/UitvoerNaam.h"
#include "forms/Gesprek.h"
#include "output/Tekstpaginas.h"

namespace lb77 {

// What something with this title is called as a file, its extension behind it.
[[nodiscard]] std::filesystem::path Opslagnaam(std::string_view titel, std::string_view uitgang);

// Asks by `vraag` where something is to be stored. On a desktop the name `naam` is proposed, if there
// is one. Nothing when the user does not say.
[[nodiscard]] std::optional<std::filesystem::path> VraagOpslag(Gesprek& gesprek,
                                                               const BestandsVraag& vraag,
                                                               const std::filesystem::path& naam);

// Asks by `vraag` where the text file is to go, and copies it there. One that is `beschermd`
// is a file in use. Tells of success and of failure; True when it was stored. On a desktop the name
// `naam` is proposed, if there is one.
[[nodiscard]] bool SlaTekstOp(Gesprek& gesprek, const Beschermd& beschermd,
                              const std::filesystem::path& tekst, const BestandsVraag& vraag,
                              const std::filesystem::path& naam = {},
                              Tekencode code = Tekencode::Zelfde);

}  // namespace lb77
