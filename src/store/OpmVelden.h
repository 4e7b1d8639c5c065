// One line of a remark, 96 bytes: the byte table of the .OPM file.
#pragma once

#include <array>
#include <cstddef>

#include "store/Veld.h"

namespace lb77::opmveld {

inline constexpr std::size_t kLengte = 96;

// clang-format off
//                                    offset width  name for Zet     record 1
inline constexpr GetalVeld Rubriek    {    0,    2, "Rubriek"    };  // the count
inline constexpr GetalVeld BijRecord  {    2,    2, "BijRecord"  };  // records in use
inline constexpr GetalVeld BijProg    {    4,    2, "BijProg"    };  // first that may be free
inline constexpr GetalVeld VolgRegel  {    6,    2, "VolgRegel"  };  // 87
inline constexpr GetalVeld BijZelfde  {    8,    2, "BijZelfde"  };
inline constexpr TekstVeld Tekstregel {   10,   80, "Tekstregel" };
inline constexpr VrijVeld  Staart     {   90,    6               };  // first byte: the probe
// clang-format on

// All fields, in file order.
inline constexpr auto kVelden =
    std::to_array<Veld>({Rubriek, BijRecord, BijProg, VolgRegel, BijZelfde, Tekstregel, Staart});
static_assert(IsSluitend(kVelden, kLengte), "gap or overlap in the remark record");

inline constexpr std::array<char, kLengte> kLeeg = LeegRecord<kLengte>(kVelden);

}  // namespace lb77::opmveld
