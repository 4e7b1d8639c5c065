// The bytes of a code page, one by one, for the tests that walk a whole table.
#pragma once

#include <cstddef>
#include <string>

namespace lb77 {

// The text of one character that is this byte (0 to 255).
inline std::string Byte(std::size_t byte) {
  return std::string(1, static_cast<char>(byte));
}

}  // namespace lb77
