// One person, 128 bytes: the byte table of the .PRS file.
#pragma once

#include <array>
#include <cstddef>

#include "store/Veld.h"

namespace lb77::persoonveld {

inline constexpr std::size_t kLengte = 128;

// clang-format off
//                                      offset width  name for Zet
inline constexpr TekstVeld Achternaam   {    0,   25, "Achternaam"  };
inline constexpr TekstVeld Voornaam     {   25,   30, "Voornaam"    };
inline constexpr GetalVeld GebPlaatsNr  {   55,    2, "GebPlaats"   };  // record 1: the count
inline constexpr DatumVeld GebDagMaand  {   57,    2, "GebDatum"    };
inline constexpr GetalVeld GebJaar      {   59,    2, "GebJaar"     };
inline constexpr TekstVeld GebCorr      {   61,    1, "GebCorr"     };  // "Z": continuation
inline constexpr GetalVeld DoopPlaatsNr {   62,    2, "DoopPlaats"  };
inline constexpr DatumVeld DoopDagMaand {   64,    2, "DoopDatum"   };
inline constexpr GetalVeld DoopJaar     {   66,    2, ""            };
inline constexpr GetalVeld OvlPlaatsNr  {   68,    2, "OvlPlaats"   };
inline constexpr DatumVeld OvDagMaand   {   70,    2, "OvlDatum"    };
inline constexpr GetalVeld OvJaar       {   72,    2, ""            };
inline constexpr TekstVeld OvlCorr      {   74,    1, "OvlCorr"     };
inline constexpr GetalVeld BegrPlaatsNr {   75,    2, "BegrPlaats"  };
inline constexpr DatumVeld BegrDagMaand {   77,    2, "BegrDatum"   };
inline constexpr GetalVeld BegrJaar     {   79,    2, ""            };
inline constexpr TekstVeld Religie      {   81,    2, "DoopReligie" };
inline constexpr TekstVeld Geslacht     {   83,    1, "Geslacht"    };  // the probe
inline constexpr GetalVeld relatie1     {   84,    2, "Relatie1"    };
inline constexpr GetalVeld relatie2     {   86,    2, "Relatie2"    };
inline constexpr GetalVeld relatie3     {   88,    2, "Relatie3"    };  // < 0: continuation
inline constexpr GetalVeld RelNrOuders  {   90,    2, "Ouders"      };
inline constexpr TekstVeld beroep       {   92,   30, "Beroep"      };
inline constexpr GetalVeld OpmRecord    {  122,    2, "OpmRecord"   };
inline constexpr GetalVeld OpmCode      {  124,    2, "OpmCode"     };
inline constexpr KeuzeVeld BegrCrem     {  126,    1, "BegrCrem", " C" };
inline constexpr VrijVeld  Vrij         {  127,    1                };
// clang-format on

// All fields, in file order.
inline constexpr auto kVelden = std::to_array<Veld>(
    {Achternaam,   Voornaam, GebPlaatsNr, GebDagMaand, GebJaar,  GebCorr,  DoopPlaatsNr,
     DoopDagMaand, DoopJaar, OvlPlaatsNr, OvDagMaand,  OvJaar,   OvlCorr,  BegrPlaatsNr,
     BegrDagMaand, BegrJaar, Religie,     Geslacht,    relatie1, relatie2, relatie3,
     RelNrOuders,  beroep,   OpmRecord,   OpmCode,     BegrCrem, Vrij});
static_assert(IsSluitend(kVelden, kLengte), "gap or overlap in the person record");

inline constexpr std::array<char, kLengte> kLeeg = LeegRecord<kLengte>(kVelden);

}  // namespace lb77::persoonveld
