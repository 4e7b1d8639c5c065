// The names of provinces and countries, and the codes behind names that were typed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "contact/GciTabellen.h"

namespace lb77 {

// What stands for a name that is not known.
inline constexpr std::string_view kNaamloos = "???";

// The name of a province in a country. Of a code with two names it is `gezocht` when that is one of
// them, else the first. Empty for an empty code; kNaamloos for one that nobody knows.
[[nodiscard]] std::string ProvincieNaam(std::string_view code, std::string_view land,
                                        const GciProvincies& provincies,
                                        std::string_view gezocht = {});

// The same for a name that led to the code: with no country it stays that name, as it is spelled in the
// table, whatever else the code may mean.
[[nodiscard]] std::string ProvincieNaamBij(std::string_view code, std::string_view land,
                                           const GciProvincies& provincies,
                                           std::string_view gezocht);

// The code of a province by its name or its code; one of that country goes first.
[[nodiscard]] std::optional<std::string> ProvincieCode(std::string_view tekst,
                                                       std::string_view land,
                                                       const GciProvincies& provincies);

// The name of a country, likewise.
[[nodiscard]] std::string LandNaam(std::string_view code, const GciLanden& landen);

// The code of a country by its name or its code.
[[nodiscard]] std::optional<std::string> LandCode(std::string_view tekst, const GciLanden& landen);

}  // namespace lb77
