// Dates: what the user types, what the records keep, and the short text in phrases.
//
// A stored date is `DagMaand` (day * 100 + month) and `Jaar`; a part that is unknown is 0.
// The entry form is "dd" sep "mm" sep "jjjj", 10 characters; an empty date is the blank mask.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

// What DatumGeldig makes of a text.
struct DatumOordeel {
  bool geldig = true;
  std::string tekst;                        // rebuilt in the entry form, also when not valid
  std::vector<std::string_view> meldingen;  // warnings, in the order in which they are shown
};

// The three numbers of a date; 0 for an unknown part.
struct DatumDelen {
  int dag = 0;
  int maand = 0;
  int jaar = 0;
};

// Reads what the user typed, brings it into the entry form and validates it. Only `scheider`
// counts as a separator. Unknown parts are valid; years run from 0 to 2100.
[[nodiscard]] DatumOordeel DatumGeldig(std::string_view tekst, char scheider);

// The short text: ‘3-5-1850’, ‘5-1850’, ‘1850’. Day and month are left out when 0, the year never.
std::string DatumTekst(int dag, int maand, int jaar, char scheider);

// The blank mask: the entry form of an empty date.
std::string LegeDatum(char scheider);

// The entry form of a stored date; the blank mask when day, month and year are all 0. Damaged
// numbers come out whole, so that the result may then be longer than 10 characters.
std::string Datum10(std::int16_t dagMaand, std::int16_t jaar, char scheider);

// The stored date as the number jjjjmmdd, for comparing.
std::int32_t DatumGetal(std::int16_t dagMaand, std::int16_t jaar);

// Characters 1-2, 4-5 and 7-10 of an entry form as numbers, whatever stands between them.
// Characters that are absent count as blanks.
DatumDelen OntleedDatum10(std::string_view tekst);

// True when the first date (entry form, any separator) is certainly later than the second.
// An unknown part never makes it so.
[[nodiscard]] bool DatumIsNa(std::string_view datum1, std::string_view datum2);

}  // namespace lb77
