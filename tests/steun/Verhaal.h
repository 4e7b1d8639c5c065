// The story of a family of four generations, typed from nothing, and the bytes that it must leave.
// Plain code: it shares nothing with the record classes of the program.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

// The scripts of tests/verhalen, one behind the other, in a directory without a settings file: they
// make the set VERHAAL, enter its persons and relations, and end on the card of a person.
[[nodiscard]] std::string VerhaalVanDeFamilie();

// From there: ten lines on each rubric of person 2 and of relation 2, a second remark on the last
// rubric of the person, and one line for person 4.
[[nodiscard]] std::string VerhaalVanDeOpmerkingen();

// The four files behind both, by their extension.
struct VerhaalBestand {
  std::string_view soort;
  std::string bytes;
};
[[nodiscard]] std::array<VerhaalBestand, 4> VerwachteBestanden();
// Those of a set with one couple and their ten children, who have no places and no remarks.
[[nodiscard]] std::array<VerhaalBestand, 4> GezinBestanden();
// Those of a set in which nothing was entered yet.
[[nodiscard]] std::array<VerhaalBestand, 4> LegeBestanden();

// The first record that differs, with the first byte that does; empty when all are equal.
[[nodiscard]] std::string EersteVerschil(const VerhaalBestand& verwacht, std::string_view gevonden);

}  // namespace lb77
