#include "store/Crc32.h"

#include <array>
#include <cstddef>

namespace lb77 {

namespace {

constexpr std::uint32_t kVeelterm = 0xEDB88320U;

// How a byte works on the sum when 0 to 7 bytes follow it in the same step.
using Tabellen = std::array<std::array<std::uint32_t, 256>, 8>;

constexpr Tabellen MaakTabellen() {
  Tabellen tabellen{};
  for (std::uint32_t i = 0; i < 256; ++i) {
    std::uint32_t rest = i;
    for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1U) ^ ((rest & 1U) != 0 ? kVeelterm : 0U);
    tabellen[0][i] = rest;
  }
  for (std::size_t stap = 1; stap < tabellen.size(); ++stap) {
    for (std::size_t i = 0; i < 256; ++i) {
      const std::uint32_t vorige = tabellen[stap - 1][i];
      tabellen[stap][i] = (vorige >> 8U) ^ tabellen[0][vorige & 0xFFU];
    }
  }
  return tabellen;
}

constexpr Tabellen kTabellen = MaakTabellen();

}  // namespace

std::uint32_t Crc32(std::span<const char> bytes) {
  std::uint32_t som = 0xFFFFFFFFU;
  const auto byte = [&bytes](std::size_t i) {
    return std::uint32_t{static_cast<unsigned char>(bytes[i])};
  };
  // Eight bytes at a time: an import asks a sum at each of its writes.
  for (; bytes.size() >= 8; bytes = bytes.subspan(8)) {
    som ^= byte(0) | (byte(1) << 8U) | (byte(2) << 16U) | (byte(3) << 24U);
    som = kTabellen[7][som & 0xFFU] ^ kTabellen[6][(som >> 8U) & 0xFFU] ^
          kTabellen[5][(som >> 16U) & 0xFFU] ^ kTabellen[4][som >> 24U] ^ kTabellen[3][byte(4)] ^
          kTabellen[2][byte(5)] ^ kTabellen[1][byte(6)] ^ kTabellen[0][byte(7)];
  }
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    som = (som >> 8U) ^ kTabellen[0][(som ^ byte(i)) & 0xFFU];
  }
  return ~som;
}

}  // namespace lb77
