// Dates of a GEDCOM file, with their qualifiers, to the three numbers of a record.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/Datum.h"

namespace lb77 {

// A date with its correction code: "C", "N", "V", "T", or a blank for an exact one. `twee` is the
// end of a "T". What is not known is 0.
struct GedcomDatum {
  char correctie = ' ';
  DatumDelen een;
  DatumDelen twee;
  std::vector<std::string> meldingen;  // lines for the log
};

// `context` names the record in the log.
[[nodiscard]] GedcomDatum GedDatum(std::string_view tekst, std::string_view context);

// One date; a day of -1 means that it cannot be read.
[[nodiscard]] DatumDelen GedDatumDeel(std::string_view tekst);

// ‘dd-mm-jjjj’, zero-padded, as Zet takes it.
[[nodiscard]] std::string GedDatumTekst(const DatumDelen& datum);

}  // namespace lb77
