// What stands in Windows-1252 text for a Unicode character that it does not have.
#pragma once

#include <optional>
#include <string_view>

namespace lb77 {

// The text that stands for a character without a byte of its own; the empty text for a mark
// without width. Nothing when there is no sensible one (other scripts, symbols).
std::optional<std::string_view> Translitteratie(char32_t codepunt);

}  // namespace lb77
