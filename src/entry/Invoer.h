// What every entry dialog asks of a typed record number.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/Gesprek.h"
#include "store/Bestandenset.h"
#include "store/Gegevens.h"

namespace lb77 {

// What a person or relation must be besides readable.
enum class Vervolgtest {
  GeenVervolg = -1,  // no continuation record
  Geen = 0,          // anything
  Vervolg = 1        // a continuation record
};

// Fills both names of person `nr` and the number as text. 0 empties all three; a person who can't
// be read gets "?????" for both names. The buffer of `persoon` changes.
void HaalNaam(PersoonLB77& persoon, std::int16_t nr, std::string& voornaam, std::string& achternaam,
              std::string& nrtekst);

// Is the text the number of a record of that file? Tells the user why not; an empty text is
// refused silently. Only its first five characters count. Of persons and relations the record is
// read into its buffer, and `vervolgtest` judges it; remarks and places are not read.
[[nodiscard]] bool RecordNrGeldig(const Gegevens& gegevens, Gesprek& gesprek,
                                  std::string_view tekst, BestandSoort bestand,
                                  Vervolgtest vervolgtest);

}  // namespace lb77
