// What every entry dialog asks of a typed record number.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/Bestandenset.h"
#include "store/PersoonLB77.h"

namespace lb77 {

class Hoofdmodule;

/// Fills both names of person `nr` and the number as text. 0 empties all three; a person who can't
/// be read gets "?????" for both names. The buffer of `persoon` changes.
void HaalNaam(PersoonLB77& persoon, std::int16_t nr, std::string& voornaam, std::string& achternaam,
              std::string& nrtekst);

/// Is the text the number of a record of that file? Tells the user why not; an empty text is
/// refused silently. Of persons and relations the record is read into its buffer, and
/// `vervolgtest` says what it must be: 0 anything, -1 no continuation record, 1 one.
[[nodiscard]] bool RecordNrGeldig(Hoofdmodule& hoofd, std::string_view tekst, BestandSoort bestand,
                                  int vervolgtest);

}  // namespace lb77
