// One relation, 64 bytes: the byte table of the .RLT file.
#pragma once

#include <array>
#include <cstddef>

#include "store/Veld.h"

namespace lb77::relatieveld {

inline constexpr std::size_t kLengte = 64;

// clang-format off
//                                        offset width  name for Zet
inline constexpr GetalVeld ManNr          {    0,    2, "ManNr"      };  // record 1: the count
inline constexpr GetalVeld VrouwNr        {    2,    2, "VrouwNr"    };
inline constexpr GetalVeld OtrPlaatsNr    {    4,    2, "OtrPlaats"  };
inline constexpr DatumVeld OtrDagMaand    {    6,    2, "OtrDatum"   };
inline constexpr GetalVeld OtrJaar        {    8,    2, ""           };
inline constexpr GetalVeld WetHuwPlaatsNr {   10,    2, "WHuwPlaats" };
inline constexpr DatumVeld WetHuwDagMaand {   12,    2, "WHuwDatum"  };
inline constexpr GetalVeld WetHuwJaar     {   14,    2, "WetHuwJaar" };
inline constexpr TekstVeld HuwCorr        {   16,    1, "HuwCorr"    };  // the probe; "Z": continuation
inline constexpr GetalVeld KHuwPlaatsNr   {   17,    2, "KHuwPlaats" };
inline constexpr DatumVeld KHuwDagMaand   {   19,    2, "KHuwDatum"  };
inline constexpr GetalVeld KHuwJaar       {   21,    2, ""           };
inline constexpr TekstVeld Religie        {   23,    2, "Religie"    };
inline constexpr GetalVeld Kind1          {   25,    2, "Kind1"      };
inline constexpr GetalVeld Kind2          {   27,    2, "Kind2"      };
inline constexpr GetalVeld Kind3          {   29,    2, "Kind3"      };
inline constexpr GetalVeld Kind4          {   31,    2, "Kind4"      };
inline constexpr GetalVeld Kind5          {   33,    2, "Kind5"      };
inline constexpr GetalVeld Kind6          {   35,    2, "Kind6"      };
inline constexpr GetalVeld Kind7          {   37,    2, "Kind7"      };
inline constexpr GetalVeld Kind8          {   39,    2, "Kind8"      };
inline constexpr GetalVeld Kind9          {   41,    2, "Kind9"      };
inline constexpr GetalVeld Kind10         {   43,    2, "Kind10"     };
inline constexpr GetalVeld Kind11         {   45,    2, "Kind11"     };
inline constexpr GetalVeld Kind12         {   47,    2, "Kind12"     };
inline constexpr GetalVeld Kind13         {   49,    2, "Kind13"     };
inline constexpr GetalVeld Kind14         {   51,    2, "Kind14"     };
inline constexpr GetalVeld Kind15         {   53,    2, "Kind15"     };  // < 0: continuation
inline constexpr TekstVeld HuwSoort       {   55,    2, "HuwSoort"   };
inline constexpr GetalVeld OpmRecord      {   57,    2, "OpmRecord"  };
inline constexpr GetalVeld OpmCode        {   59,    2, "OpmCode"    };
inline constexpr KeuzeVeld KHuwSch        {   61,    1, "KHuwSch", " S"  };
inline constexpr KeuzeVeld HuwSwPs        {   62,    1, "HuwSwPs", " SP", 2 };  // kept: any other is "P"
inline constexpr VrijVeld  Vrij           {   63,    1               };
// clang-format on

// All fields, in file order.
inline constexpr auto kVelden = std::to_array<Veld>(
    {ManNr,          VrouwNr,    OtrPlaatsNr, OtrDagMaand,  OtrJaar,      WetHuwPlaatsNr,
     WetHuwDagMaand, WetHuwJaar, HuwCorr,     KHuwPlaatsNr, KHuwDagMaand, KHuwJaar,
     Religie,        Kind1,      Kind2,       Kind3,        Kind4,        Kind5,
     Kind6,          Kind7,      Kind8,       Kind9,        Kind10,       Kind11,
     Kind12,         Kind13,     Kind14,      Kind15,       HuwSoort,     OpmRecord,
     OpmCode,        KHuwSch,    HuwSwPs,     Vrij});
static_assert(IsSluitend(kVelden, kLengte), "gap or overlap in the relation record");

inline constexpr std::array<char, kLengte> kLeeg = LeegRecord<kLengte>(kVelden);

}  // namespace lb77::relatieveld
