// Records written out by hand, and the proof that a field is where the byte table says.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace lb77 {

// Bytes at an offset of a record.
struct Stuk {
  std::size_t plaats;
  std::string_view bytes;
};

// A record of `lengte` bytes out of pieces that must follow each other without a gap.
inline std::string Beeld(std::size_t lengte, std::initializer_list<Stuk> stukken) {
  std::string beeld;
  for (const Stuk& stuk : stukken) {
    EXPECT_EQ(beeld.size(), stuk.plaats) << "stuk op de verkeerde plaats";
    beeld += stuk.bytes;
  }
  EXPECT_EQ(beeld.size(), lengte);
  return beeld;
}

// Bytes with NUL in them.
template <std::size_t N>
constexpr std::string_view B(const char (&tekst)[N]) {
  return {static_cast<const char*>(tekst), N - 1};
}

// Sets one field of a blank record and expects exactly these bytes at this offset to have changed.
template <class Klasse>
void VerwachtVeld(Klasse& klasse, std::string_view veld, std::string_view waarde,
                  std::size_t plaats, std::string_view bytes) {
  std::string verwacht(klasse.Bytes().data(), klasse.Bytes().size());
  verwacht.replace(plaats, bytes.size(), bytes);
  klasse.Zet(veld, waarde);
  const std::string gevonden(klasse.Bytes().data(), klasse.Bytes().size());
  EXPECT_EQ(gevonden, verwacht) << veld << " = " << waarde;
}

}  // namespace lb77
