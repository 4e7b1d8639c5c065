// The dates of a record as the lines of a GEDCOM 5.5.1 file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lb77 {

// A date as a record has it: day * 100 + month, and the year; 0 for what is not known.
struct OpslagDatum {
  std::int16_t dagMaand = 0;
  std::int16_t jaar = 0;

  [[nodiscard]] bool IsLeeg() const { return dagMaand == 0 && jaar == 0; }
};

// What the lines of an event tell. Empty texts have no line.
struct Ged551DatumRegels {
  std::string waarde;   // of DATE
  std::string corr;     // a correction code that DATE does not tell
  std::string rauw;     // the date as Zet takes it, where DATE does not tell it
  std::string rauwTot;  // the same of the date that ends a period
  int verlies = 0;      // dates with numbers that no line can hold
};

// ‘12 MAR 1890’, ‘MAR 1890’, ‘1890’; nothing for what the standard's calendar does not have, such as
// a day without a month.
[[nodiscard]] std::optional<std::string> Ged551Dag(const OpslagDatum& datum);

// The lines of a date with its correction code (empty for none). `tot` ends a period: it counts
// with that code only.
[[nodiscard]] Ged551DatumRegels Ged551Datum(const OpslagDatum& datum, const OpslagDatum& tot,
                                            std::string_view corr);

}  // namespace lb77
