// Code page 850, met in imported files, to Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// Shown (information) at each conversion.
// kept: it names other code pages than the one applied; users know it in this wording.
inline constexpr std::string_view kDos850Melding =
    "Codepage 860 wordt nog niet ondersteund.\nCodepage 437 wordt gebruikt";

// Code page 850 to Windows-1252, byte for byte. A byte without an equivalent passes unchanged.
// Showing kDos850Melding is the caller's business.
std::string Dos850NaarWindows(std::string_view dos);

}  // namespace lb77
