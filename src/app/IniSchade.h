// What can be seen of a settings file that was not written to its end.
#pragma once

#include <string_view>

namespace lb77 {

// True when nothing was written: only blanks, line ends, and the NULs that a power cut leaves.
[[nodiscard]] bool IsLeegIni(std::string_view inhoud);

// True when the file ends with the last line that this program writes.
[[nodiscard]] bool IsHeelIni(std::string_view inhoud);

// True when its complete lines are the first ones that this program writes, in their order.
[[nodiscard]] bool IsBeginVanIni(std::string_view inhoud);

}  // namespace lb77
