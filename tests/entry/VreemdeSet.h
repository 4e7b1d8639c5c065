// Records full of bytes that no dialog would write.
#pragma once

#include <cstddef>
#include <string>

namespace lb77 {

inline constexpr int kVreemden = 48;

// Different in each record; the probe at `sonde` holds `teken`, so that it stays readable.
inline std::string VreemdRecord(std::size_t lengte, unsigned zaad, std::size_t sonde, char teken) {
  std::string bytes;
  for (unsigned i = 0; i < lengte; ++i) {
    bytes += static_cast<char>((zaad * 37U + i * (2 * zaad + 1U)) & 0xFFU);
  }
  bytes[sonde] = teken;
  return bytes;
}

// As many as kVreemden, one behind the other.
inline std::string VreemdeRecords(std::size_t lengte, std::size_t sonde, char teken) {
  std::string bytes;
  for (unsigned zaad = 0; zaad < kVreemden; ++zaad) {
    bytes += VreemdRecord(lengte, zaad, sonde, teken);
  }
  return bytes;
}

}  // namespace lb77
