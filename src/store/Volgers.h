// The trackers: which records the session stands on, and which lie in the buffers.
#pragma once

#include <cstdint>

namespace lb77 {

// -1 in a current number means none, or a new record; in a buffer number that nothing valid lies
// in the buffer.
struct Volgers {
  std::int16_t HuidigPersoonNr = -1;  // the person at hand
  std::int16_t HuidigRelatieNr = -1;  // the relation at hand
  std::int16_t HuidigOpmNr = -1;      // where OpmLB77 reads and writes
  std::int16_t PersBufNr = -1;
  std::int16_t RelBufNr = -1;
  std::int16_t OpmBufNr = -1;
  std::int16_t PlaatsBufNr = 0;  // 0 after any read or write of another file
};

}  // namespace lb77
