// The value of a PLAC line: place, province, country.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// The levels of these values, for the head of the file.
inline constexpr std::string_view kGed551PlaatsVorm = "City, Province, Country";

// ‘Delft, Zuid-Holland, Nederland’. A province code that is not known stands in the place of the
// province; without a code, between brackets behind the name neither, only the name is told. A comma in
// a name becomes a semicolon.
[[nodiscard]] std::string Ged551Plaats(std::string_view naam, std::string_view prov);

}  // namespace lb77
