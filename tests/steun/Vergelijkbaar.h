// Transcripts that hold the names of files.
#pragma once

#include <string>

namespace lb77 {

// The same on each system: a path has slashes where the system has backslashes.
[[nodiscard]] std::string Vergelijkbaar(std::string tekst);

}  // namespace lb77
