// The walk over all records of a file.
#pragma once

#include <cstdint>

#include "reporting/RecordBron.h"
#include "reporting/Verloop.h"

namespace lb77 {

// Record 1 tells about its file.
inline constexpr std::int16_t kEersteRecord = 2;

// Reads the record. False for one that is not there, and for the continuation of another.
template <class Record>
[[nodiscard]] bool LeesHoofdrecord(Record& record, std::int16_t nr) {
  if (nr < kEersteRecord || !record.Lees(nr)) return false;
  if constexpr (requires { record.IsVolgRecord(); }) return !record.IsVolgRecord();
  return true;
}

// Calls `doe` with the number of each record that can be read, in their order; continuations are
// passed over. `lezer.record` holds the record at each call.
template <class Record, class Doe>
[[nodiscard]] Uitslag LoopRecords(const Lezer<Record>& lezer, const Verloop& verloop, Doe doe) {
  const std::int32_t laatste = lezer.Laatste();
  for (std::int32_t nr = kEersteRecord; nr <= laatste; ++nr) {
    if (verloop.afbreken()) return Einde::Afgebroken;
    const auto recordNr = static_cast<std::int16_t>(nr);
    if (LeesHoofdrecord(lezer.record, recordNr)) doe(recordNr);
  }
  return Einde::Klaar;
}

}  // namespace lb77
