// Where a record file ends, whatever its admin record says.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "forms/Gesprek.h"
#include "store/RecordBestand.h"
#include "text/Getallen.h"

namespace lb77 {

// Can the system give the bytes of this record? A record that is absent gives none, which is no failure.
[[nodiscard]] inline bool IsLeesbaar(RecordBestand& bestand, std::int32_t nr) {
  std::array<char, 128> bytes{};
  return !bestand.Lees(nr, std::span(bytes).first(bestand.RecordLengte())).fout;
}

// The highest number that holds a record, found from the file's length downward, so that no hole cuts
// it off; 1 when there is none behind the admin record. What the system refuses to read is there all
// the same. No box is shown; the buffer of `klasse` changes.
template <class Klasse>
[[nodiscard]] std::int16_t LaatsteRecord(Klasse& klasse, RecordBestand& bestand) {
  const std::uint64_t lengte = bestand.Lengte();
  std::int32_t nr = kMaxRecords;  // also when the length can't be told
  if (lengte > 0) {
    nr = static_cast<std::int32_t>(
        std::min<std::uint64_t>((lengte - 1) / bestand.RecordLengte() + 1, kMaxRecords));
  }
  for (; nr > 1; --nr) {
    if (!IsLeesbaar(bestand, nr) || klasse.Lees(static_cast<std::int16_t>(nr))) break;
  }
  return static_cast<std::int16_t>(std::max(nr, 1));
}

// Reads a record without a box for a system that refuses it.
template <class Klasse>
[[nodiscard]] bool LeesZonderMelding(Klasse& klasse, RecordBestand& bestand, std::int16_t nr) {
  return IsLeesbaar(bestand, nr) && klasse.Lees(nr);
}

// Reads a record that the user asked for. Says `komtNietVoor` when there is none; one that the system
// refuses has told so itself.
template <class Klasse>
[[nodiscard]] bool LeesOfMeld(Gesprek& gesprek, Klasse& klasse, RecordBestand& bestand,
                              std::int32_t nr, std::string_view komtNietVoor) {
  constexpr std::int32_t kEersteNr = 2;
  if (nr >= kEersteNr) {
    if (klasse.Lees(static_cast<std::int16_t>(nr))) return true;
    if (!IsLeesbaar(bestand, nr)) return false;
  }
  gesprek.Waarschuw(komtNietVoor);
  return false;
}

}  // namespace lb77
