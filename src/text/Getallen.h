// Numbers in texts, and checked arithmetic on record numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lb77 {

// The highest record number: numbers are signed and 16 bits wide.
inline constexpr std::int32_t kMaxRecords = 32767;

// What the user reads when a number would pass kMaxRecords (stop symbol).
inline constexpr std::string_view kMaximumBereikt = "Het maximum van 32767 records is bereikt";

// The value of a text: leading blanks, one optional sign, digits up to the first other
// character. 0 when there are no digits; too large a number gives the limit of the type.
std::int32_t Getalwaarde(std::string_view tekst);

// The number in 16 bits; nothing when it does not fit.
std::optional<std::int16_t> NaarInt16(std::int32_t getal);

// The sum in 16 bits; nothing when it does not fit.
std::optional<std::int16_t> TelOp(std::int16_t getal, std::int32_t erbij);

// The number in decimal digits, with "-" in front when negative.
std::string GetalTekst(std::int64_t getal);

// The number in decimal digits; the empty text for 0.
std::string NrTekst(std::int32_t nr);

// The number with zeros in front up to `breedte` characters, a sign counted and in front of the
// zeros. A number that is wider comes out whole.
std::string NulGevuld(std::int32_t getal, std::size_t breedte);

}  // namespace lb77
