// The check sum of journals.
#pragma once

#include <cstdint>
#include <span>

namespace lb77 {

// CRC-32 with the polynomial EDB88320, as in ZIP and PNG: of "123456789" it is CBF43926.
[[nodiscard]] std::uint32_t Crc32(std::span<const char> bytes);

}  // namespace lb77
