// Roman numerals, for generations.
#pragma once

#include <cstdint>
#include <string>

namespace lb77 {

// The standard roman numeral; the empty text for 0 and for negative numbers.
std::string RomeinsGetal(std::int16_t getal);

}  // namespace lb77
