// What the conversion tables of this folder share: a table has one entry for each of 256 bytes.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace lb77 {

// A table that gives one byte for each byte.
using ByteTabel = std::array<char, 256>;

// A table that gives a text for each byte.
using TekstTabel = std::array<std::string_view, 256>;

// A row that tells the characters of consecutive bytes.
struct Reeks {
  unsigned vanaf = 0;
  std::string_view tekens;
};

// A row that tells one byte for one byte.
struct ByteRij {
  unsigned byte = 0;
  unsigned wordt = 0;
};

// A row that tells the text for one byte.
struct TekstRij {
  unsigned byte = 0;
  std::string_view wordt;
};

// The table in which every byte passes unchanged.
consteval ByteTabel OngewijzigdeBytes() {
  ByteTabel tabel{};
  for (std::size_t i = 0; i < tabel.size(); ++i) tabel[i] = static_cast<char>(i);
  return tabel;
}

// Storage to which a text of one character can point.
inline constexpr ByteTabel kAlleBytes = OngewijzigdeBytes();

// The text of one character that is this byte.
constexpr std::string_view EnkelTeken(unsigned byte) {
  return {&kAlleBytes[byte & 0xFFU], 1};
}

// The table in which every byte passes unchanged, as texts.
consteval TekstTabel OngewijzigdeTeksten() {
  TekstTabel tabel{};
  for (unsigned i = 0; i < tabel.size(); ++i) tabel[i] = EnkelTeken(i);
  return tabel;
}

// Converts each byte by its entry.
template <typename Tabel>
std::string ZetOm(std::string_view tekst, const Tabel& tabel) {
  std::string uit;
  uit.reserve(tekst.size());
  for (const char teken : tekst) uit += tabel[static_cast<unsigned char>(teken)];
  return uit;
}

}  // namespace lb77
