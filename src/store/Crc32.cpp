#include "store/Crc32.h"

#include <array>
#include <cstddef>

namespace lb77 {

namespace {

constexpr std::uint32_t kVeelterm = 0xEDB88320U;

constexpr std::array<std::uint32_t, 256> MaakTabel() {
  std::array<std::uint32_t, 256> tabel{};
  for (std::uint32_t i = 0; i < tabel.size(); ++i) {
    std::uint32_t rest = i;
    for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1U) ^ ((rest & 1U) != 0 ? kVeelterm : 0U);
    tabel[i] = rest;
  }
  return tabel;
}

constexpr std::array<std::uint32_t, 256> kTabel = MaakTabel();

}  // namespace

std::uint32_t Crc32(std::span<const char> bytes) {
  std::uint32_t som = 0xFFFFFFFFU;
  for (const char byte : bytes) {
    som = (som >> 8U) ^ kTabel[(som ^ static_cast<unsigned char>(byte)) & 0xFFU];
  }
  return ~som;
}

}  // namespace lb77
