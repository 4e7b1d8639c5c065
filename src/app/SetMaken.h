// The making of a file set, however the user came to it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"

namespace lb77 {

// Longest name and description, in characters.
inline constexpr std::size_t kMaxSetNaam = 8;
inline constexpr std::size_t kMaxSetOms = 50;

// Makes a directory that is not there, and those above it. False after a message.
[[nodiscard]] bool MaakMap(Gesprek& gesprek, const std::filesystem::path& gevraagd);

// What can't become a set is refused before anything changes: another kind of name, or one more
// than the list holds. False after a warning.
[[nodiscard]] bool KanNieuweSetZijn(Hoofdmodule& hoofd, const std::string& naam);

// Makes what is not there of the set, adopts what is, opens it and puts it in the list and in the
// settings. False after a message; then no set is active. Precondition: KanNieuweSetZijn(naam).
[[nodiscard]] bool MaakSet(Hoofdmodule& hoofd, MenuWindow& menu, const std::string& naam,
                           const std::string& omschrijving);

// A name like `basis` that neither the list nor the data directory has.
[[nodiscard]] std::string VrijeSetNaam(const Hoofdmodule& hoofd, std::string_view basis);

}  // namespace lb77
