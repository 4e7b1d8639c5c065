// The text of a remark: from its lines, and back into lines.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/OpmLB77.h"

namespace lb77 {

// A remark as it stands in the file.
struct OpmInhoud {
  OpmRegels regels;         // a bad link gives a last line that says so
  OpmRecnrs recnrs{};       // 0 from the first line on that is not there
  std::int16_t vorige = 0;  // the first record of the owner's remark before it
  std::int16_t prog = 0;    // 0 when there is no remark
  bool heel = true;         // every link holds, and no record serves twice

  [[nodiscard]] bool Bestaat() const { return recnrs[0] != 0; }
  // All lines with a text, a blank between them.
  [[nodiscard]] std::string Tekst() const;
};

// The remark of a rubric that begins at line `Regel`: 1 for the first of the rubric, 11 for the
// second. The buffer of remarks and HuidigOpmNr change.
[[nodiscard]] OpmInhoud LeesOpmerking(OpmLB77& opmerking, std::int16_t OpmCode, std::int16_t Begin,
                                      std::int16_t Rubriek, std::int16_t Regel);

// What is shown of it: its lines up to the first that is empty, a blank between them.
[[nodiscard]] std::string OpmTekst(OpmLB77& opmerking, std::int16_t OpmCode, std::int16_t Begin,
                                   std::int16_t Rubriek, std::int16_t Regel);

// A text as the lines of a remark.
struct OpmAfgebroken {
  OpmRegels regels;
  bool geheel = true;  // nothing was dropped behind the tenth line
};

// Breaks at blanks, a line end being one too; a word longer than a line is cut. A line is as long as
// it will be stored: a character that is stored as several counts, and comes out, as those.
[[nodiscard]] OpmAfgebroken BreekOpmerkingAf(std::string_view tekst);

}  // namespace lb77
