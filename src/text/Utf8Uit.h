// Writing one character as UTF-8.
#pragma once

#include <string>

namespace lb77 {

// Adds the sequence of a character, which is no surrogate and at most U+10FFFF.
inline void VoegUtf8Toe(std::string& uit, char32_t codepunt) {
  const auto voegToe = [&](char32_t byte) { uit += static_cast<char>(byte); };
  const auto voegVervolg = [&](unsigned plaats) {
    voegToe(0x80U | ((codepunt >> plaats) & 0x3FU));
  };
  if (codepunt < 0x80) {
    voegToe(codepunt);
    return;
  }
  if (codepunt < 0x800) {
    voegToe(0xC0U | (codepunt >> 6U));
  } else if (codepunt < 0x10000) {
    voegToe(0xE0U | (codepunt >> 12U));
    voegVervolg(6);
  } else {
    voegToe(0xF0U | (codepunt >> 18U));
    voegVervolg(12);
    voegVervolg(6);
  }
  voegVervolg(0);
}

}  // namespace lb77
