// Reads and writes that the system may do in pieces, put together.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <system_error>
#include <utility>

#include "store/SysteemFout.h"

namespace lb77 {

// The number of bytes that an operation reached, or why it failed.
struct Leesuitslag {
  std::size_t gelezen = 0;  // fewer than asked only at the end of the file
  SysteemFout fout;
};

// What came of one call of the system.
struct Roepuitslag {
  std::ptrdiff_t bytes = 0;  // -1 after an error
  bool onderbroken = false;  // an error that goes away when the call is made again
  SysteemFout fout{};
};

// Fills `doel` from byte `plaats` on. `roep(plaats, doel)` makes one call of the system.
template <class Roep>
Leesuitslag LeesInStukken(std::uint64_t plaats, std::span<char> doel, Roep roep) {
  Leesuitslag uitslag;
  while (uitslag.gelezen < doel.size()) {
    Roepuitslag stuk = roep(plaats + uitslag.gelezen, doel.subspan(uitslag.gelezen));
    if (stuk.bytes == 0) break;
    if (stuk.bytes > 0) {
      uitslag.gelezen += static_cast<std::size_t>(stuk.bytes);
    } else if (!stuk.onderbroken) {
      uitslag.fout = std::move(stuk.fout);
      break;
    }
  }
  return uitslag;
}

// Writes all of `bron` from byte `plaats` on, likewise. A call that writes nothing has no room.
template <class Roep>
SysteemFout SchrijfInStukken(std::uint64_t plaats, std::span<const char> bron, Roep roep) {
  while (!bron.empty()) {
    Roepuitslag stuk = roep(plaats, bron);
    if (stuk.bytes == 0) return FoutVan(std::make_error_code(std::errc::no_space_on_device));
    if (stuk.bytes > 0) {
      plaats += static_cast<std::uint64_t>(stuk.bytes);
      bron = bron.subspan(static_cast<std::size_t>(stuk.bytes));
    } else if (!stuk.onderbroken) {
      return std::move(stuk.fout);
    }
  }
  return {};
}

}  // namespace lb77
