// What the user hears of an error that nobody caught.
#pragma once

#include <exception>
#include <string>

namespace lb77 {

// Why, in Dutch (Windows-1252), without a full stop; empty when the error says nothing to a user. What
// a library calls its errors stays inside.
[[nodiscard]] std::string UitzonderingTekst(const std::exception& fout);

}  // namespace lb77
