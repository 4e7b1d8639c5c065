// The colours of the pictures: each lets black text be read, and is told from its neighbours in grey
// and by the colour-blind too.
#pragma once

#include <array>
#include <cstddef>

#include "forms/Tekening.h"
#include "pictures/BeeldPersoon.h"

namespace lb77 {

inline constexpr Kleur kInkt{0x20, 0x24, 0x2A};
inline constexpr Kleur kZacht{0x30, 0x35, 0x3C};  // of what is said in passing
inline constexpr Kleur kRand{0x6B, 0x72, 0x7B};   // around a box, and between boxes
inline constexpr Kleur kPapier{0xFF, 0xFF, 0xFF};
inline constexpr Kleur kOpen{0xF3, 0xF3, 0xF0};  // where nobody is known

// One after the other for the generations, then from the first again. Light and dark take turns.
inline constexpr std::array<Kleur, 6> kGeneratiekleuren{{{0xF2, 0xC1, 0x4E},
                                                         {0x86, 0xB0, 0xD9},
                                                         {0xF6, 0xE6, 0xBC},
                                                         {0x98, 0xC4, 0x9F},
                                                         {0xF4, 0xD3, 0xDE},
                                                         {0xB0, 0x9A, 0xCB}}};
inline constexpr Kleur kMankleur{0x9C, 0xC2, 0xE5};
inline constexpr Kleur kVrouwkleur{0xF9, 0xDD, 0xB1};
inline constexpr Kleur kOnbekendkleur = kPapier;

[[nodiscard]] constexpr Kleur KleurVan(Geslacht geslacht) {
  switch (geslacht) {
    case Geslacht::Man:
      return kMankleur;
    case Geslacht::Vrouw:
      return kVrouwkleur;
    case Geslacht::Onbekend:
      break;
  }
  return kOnbekendkleur;
}

// What fills the box of a person; `generatie` counts from 0.
[[nodiscard]] constexpr Kleur KleurVan(Kleurwijze wijze, int generatie, Geslacht geslacht) {
  switch (wijze) {
    case Kleurwijze::Generatie:
      return kGeneratiekleuren[static_cast<std::size_t>(generatie) % kGeneratiekleuren.size()];
    case Kleurwijze::Geslacht:
      return KleurVan(geslacht);
    case Kleurwijze::Geen:
      break;
  }
  return kPapier;
}

}  // namespace lb77
