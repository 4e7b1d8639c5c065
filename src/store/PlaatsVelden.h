// One place, 27 bytes: the byte table of the .PLT file.
#pragma once

#include <array>
#include <cstddef>

#include "store/Veld.h"

namespace lb77::plaatsveld {

inline constexpr std::size_t kLengte = 27;

// clang-format off
//                              offset width  name for Zet
inline constexpr TekstVeld Prov {    0,    2, "Provcode"   };  // the probe; record 1: the count
inline constexpr TekstVeld Naam {    2,   25, "Plaatsnaam" };
// clang-format on

// All fields, in file order.
inline constexpr auto kVelden = std::to_array<Veld>({Prov, Naam});
static_assert(IsSluitend(kVelden, kLengte), "gap or overlap in the place record");

inline constexpr std::array<char, kLengte> kLeeg = LeegRecord<kLengte>(kVelden);

}  // namespace lb77::plaatsveld
