// The table of all settings, in the order of the settings file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace lb77 {

enum class SleutelSoort {
  Tekst,         // passes as it is
  DosTekst,      // stored in the encoding of the record files, shown in Windows-1252
  Pad,           // a path; the default names a directory in that of the program, "." is itself
  Getal,         // a signed 16-bit number
  Positie,       // a signed 32-bit number
  Scheider,      // the separator of dates: "-" or "." in memory, "0" or "1" in the file
  Gedeeld,       // the very value of the same key in the section that stands for the default
  NooitGelezen,  // written, and ignored on reading
};

// One row: a key, or with `aantal` a list of keys numbered 1 to `aantal`.
struct Sleutel {
  std::string_view sectie;
  std::string_view naam;  // as the file has it
  std::string_view standaard;
  SleutelSoort soort = SleutelSoort::Tekst;
  int aantal = 0;
};

[[nodiscard]] std::span<const Sleutel> AlleSleutels();

// Where a value lives: a row of the table, and in a list its number (else 0).
struct SleutelPlaats {
  std::size_t rij = 0;
  std::size_t nummer = 0;
};

// The row of a key of the file, whose number lies in the list's range; nothing when the section does
// not know the key.
[[nodiscard]] std::optional<SleutelPlaats> VindSleutel(std::string_view sectie,
                                                       std::string_view naam);

// The row that holds the value of this one: another one when it is shared.
[[nodiscard]] SleutelPlaats Houder(SleutelPlaats plaats);

}  // namespace lb77
