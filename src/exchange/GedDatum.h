// Dates of GEDCOM files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/Codes.h"
#include "text/Datum.h"

namespace lb77 {

// A date as read, with its correction code.
struct GedDatumUitslag {
  char corr = correctie::kGeen;
  DatumDelen eerste;
  DatumDelen tweede;             // 0 unless `corr` is kTussen
  std::vector<std::string> log;  // what could not be read, a log line each
  bool heel = true;              // the text says nothing that is not in here
};

// Reads the value of a DATE line. `context` names the record in the log lines.
[[nodiscard]] GedDatumUitslag GedDatum(std::string_view tekst, std::string_view context);
// Reads a value that could not be read once more, as people write dates; `windows` is the same text
// in Windows-1252. What it reads no better stays `eerder`.
[[nodiscard]] GedDatumUitslag GedDatumOpnieuw(std::string_view tekst, std::string_view windows,
                                              std::string_view context, GedDatumUitslag eerder);

// The form that Zet takes, ‘dd-mm-jjjj’; no date is ‘00-00-0000’.
[[nodiscard]] std::string GedDatumTekst(const DatumDelen& datum);

}  // namespace lb77
