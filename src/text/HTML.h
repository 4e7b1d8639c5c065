// Text for HTML reports.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// Windows-1252 text with entities for the characters that HTML reserves and for accented letters.
std::string TekstNaarHTML(std::string_view tekst);

}  // namespace lb77
