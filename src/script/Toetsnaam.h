// The names of keys in a script.
#pragma once

#include <optional>
#include <string_view>

#include "forms/Toets.h"

namespace lb77 {

// The key of that name ("Enter", "Shift+F3", "Num7"), or of one character in UTF-8. Nothing when
// there is no such key.
[[nodiscard]] std::optional<ToetsGebeurtenis> ToetsVanNaam(std::string_view naam);

}  // namespace lb77
