// What the system calls its failures.
#pragma once

#include <system_error>

namespace lb77 {

// A failure of which the library does not know what the system means by it, as one that it does know;
// any other as it is.
[[nodiscard]] std::error_code Herkend(const std::error_code& code);

}  // namespace lb77
