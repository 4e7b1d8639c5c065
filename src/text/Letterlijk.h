// "geëxporteerd"_w: a literal typed in UTF-8 that is Windows-1252 text in the program.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "text/Unicode.h"
#include "text/Utf8.h"

namespace lb77 {

namespace letterlijk {

// The source literal, as a value that a template can be given.
template <std::size_t N>
struct Bron {
  // NOLINTNEXTLINE(google-explicit-constructor): a literal operator template needs the conversion
  consteval Bron(const char (&tekst)[N]) {
    for (std::size_t i = 0; i < N; ++i) tekens[i] = tekst[i];
  }
  char tekens[N]{};
};

// The converted bytes, closed by a NUL; the compiler refuses (throws) what has no equivalent.
template <std::size_t N>
struct Doel {
  consteval explicit Doel(const Bron<N>& bron) {
    const std::string_view tekst(static_cast<const char*>(bron.tekens), N - 1);
    for (std::size_t i = 0; i < tekst.size();) {
      const Utf8Teken gelezen = LeesUtf8(tekst, i);
      if (gelezen.lengte == 0) throw "the literal is not UTF-8";
      tekens[lengte++] = TekenVan(gelezen.codepunt).value();
      i += gelezen.lengte;
    }
  }
  std::array<char, N> tekens{};
  std::size_t lengte = 0;
};

template <Bron kBron>
inline constexpr Doel kDoel{kBron};

}  // namespace letterlijk

// Windows-1252 text in static storage, converted by the compiler. A character without an
// equivalent does not compile.
template <letterlijk::Bron kBron>
consteval std::string_view operator""_w() {
  return {letterlijk::kDoel<kBron>.tekens.data(), letterlijk::kDoel<kBron>.lengte};
}

}  // namespace lb77
