// Captions with an accelerator: "&Terug" shows "Terug" and answers to Alt+T; "&&" is an ampersand.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// The caption as it is read, without the mark of the accelerator.
[[nodiscard]] std::string ZonderSneltoets(std::string_view bijschrift);

// The accelerator in upper case; 0 when the caption has none.
[[nodiscard]] char Sneltoets(std::string_view bijschrift);

}  // namespace lb77
