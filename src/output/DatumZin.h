// The phrase of one event, or of a pair of events such as a birth with its baptism.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "output/Gebeurtenis.h"
#include "store/PlaatsLB77.h"

namespace lb77 {

// What a phrase is made of. A date of which DagMaand and Jaar are 0 is not known; a place number
// is as stored, with its qualifier, 0 for none.
struct DatumZinDelen {
  std::string_view Voor1;  // opens the first event: "geb."
  std::string_view Voor2;  // opens the second event: "ged."
  std::string_view Woord;  // put behind the opening, before the place, without a blank
  std::int16_t Plaats1 = 0;
  std::int16_t DagMaand1 = 0;
  std::int16_t Jaar1 = 0;
  std::string_view Corr;  // a correction code; blank or empty for an exact date
  std::int16_t Plaats2 = 0;
  std::int16_t DagMaand2 = 0;
  std::int16_t Jaar2 = 0;
};

// A `Plaats1` that asks for the date alone.
inline constexpr std::int16_t kAlleenDatum = -1;

// The parts of a pair of events; `voor1` and `voor2` open them. They hold views of the texts.
[[nodiscard]] DatumZinDelen DelenVan(std::string_view voor1, const Gebeurtenis& een,
                                     std::string_view corr, std::string_view voor2,
                                     const Gebeurtenis& twee);

// The phrase; empty when neither event is known. Place names are read from `plaats`, whose buffer
// changes. `scheider` stands between day, month and year.
std::string DatumZin(const DatumZinDelen& delen, PlaatsLB77& plaats, char scheider);

// The bare date with the word of its correction code, without a place: "ca. 12-5-1850". Empty when
// the date is not known.
std::string KaleDatum(std::int16_t dagMaand, std::int16_t jaar, std::string_view corr,
                      char scheider);

}  // namespace lb77
