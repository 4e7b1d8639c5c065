// To which element of a record a note belongs.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace lb77 {

// `pad` is the path above the note. `voor` is put before its text.
struct OpmRubriek {
  std::string_view pad;
  std::int16_t rubriek;
  std::string_view voor;
};

[[nodiscard]] std::span<const OpmRubriek> AlleOpmRubrieken();

// The rubric of a path that the table does not have: general for a person and for a relation,
// 0 for anything else, whose notes are dropped.
[[nodiscard]] std::int16_t AlgemeneRubriek(std::string_view pad);

}  // namespace lb77
