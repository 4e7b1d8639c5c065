// An error of the operating system, told in Dutch.
#pragma once

#include <string>
#include <system_error>

namespace lb77 {

// `nummer` 0 is success. The common errors have the numbers that users know from older programs
// (53 file not found, 61 disk full, 70 no access ...), the same on every platform; any other
// error keeps the number of the system.
struct SysteemFout {
  int nummer = 0;
  std::string tekst;  // Windows-1252, without a full stop; empty on success

  // True when something went wrong.
  explicit operator bool() const { return nummer != 0; }
};

inline constexpr int kBestandNietGevonden = 53;
inline constexpr int kBestandBestaatAl = 58;
inline constexpr int kSchijfVol = 61;
inline constexpr int kGeenToegang = 70;

// The error behind a code of the standard library; success for an empty code.
SysteemFout FoutVan(const std::error_code& code);

// Why a stream of the standard library failed: what it left in errno, or an error of the disk when
// it left nothing. Set errno to 0 before the operation.
SysteemFout FoutVanStroom();

// The error of every operation on a file that is not open.
SysteemFout FoutNietOpen();

// The error of a pipe or a device where a file is expected.
SysteemFout FoutGeenBestand();

// The error of a lock that somebody else holds.
SysteemFout FoutInGebruik();

// The error of a write to a record number that cannot exist.
SysteemFout FoutRecordNummer();

}  // namespace lb77
