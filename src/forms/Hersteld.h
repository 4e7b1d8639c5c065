// How a row of a pick list tells that it has been dealt with.
#pragma once

#include <string_view>

namespace lb77 {

// The words ahead of such a row. A window strikes the row through as well.
inline constexpr std::string_view kHersteld = "[hersteld] ";

}  // namespace lb77
