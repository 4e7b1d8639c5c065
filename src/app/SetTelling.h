// How many persons a set holds, whether or not it is the active one.
#pragma once

#include <filesystem>
#include <optional>

#include "forms/Gesprek.h"
#include "text/Schrijfwijze.h"

namespace lb77 {

// Counts them in the person file of that path, found under another case too. Nothing when it is not
// there or does not open. Nothing is made or changed.
[[nodiscard]] std::optional<int> AantalPersonen(const std::filesystem::path& prs, Gesprek& gesprek,
                                                const Schrijfwijze& schrijfwijze);

}  // namespace lb77
