// The names of controls that stand in rows: "RelNrP(3)".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lb77 {

// A name taken apart: the family and the number between the brackets.
struct Rijlid {
  std::string_view familie;
  int nummer;
};

// "naam(nummer)".
[[nodiscard]] std::string Genummerd(std::string_view naam, int nummer);

// Nothing for the name of a control that stands in no row. The result points into `naam`.
[[nodiscard]] std::optional<Rijlid> OntleedRijnaam(std::string_view naam);

}  // namespace lb77
