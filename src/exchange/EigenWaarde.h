// What the value of a tag of our own may do to its field.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "store/Veld.h"

namespace lb77 {

// Can the field hold that text, in Windows-1252, and the record be read afterwards? Some texts make it
// a continuation record, or one that is not there.
[[nodiscard]] bool MagInVeld(std::string_view veld, std::string_view windows);

// The width of a text by the name of its field; no limit for any other kind of field.
[[nodiscard]] std::size_t TekstBreedte(std::span<const Veld> velden, std::string_view naam);

}  // namespace lb77
