// The lines of level 0: which kind of record begins.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

enum class GedSoort {
  Hoofd,
  Persoon,
  Relatie,
  Bron,
  Bewaarplaats,
  Inzending,
  Inzender,
  Einde,
  Anders
};

// The kind of record that a tag of level 0 begins.
[[nodiscard]] GedSoort GedSoortVan(std::string_view tag);

// The text by which log lines name a record, ‘P-I12’. Empty for a Bewaarplaats, which has none.
[[nodiscard]] std::string GedContext(GedSoort soort, std::string_view id);

}  // namespace lb77
