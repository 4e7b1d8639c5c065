// Expected files: tests/gouden/, compared byte for byte.
#pragma once

#include <string_view>

namespace lb77 {

// Expects that `bytes` is the file tests/gouden/<naam>. When it is not, what came out lies in the
// build folder, under gouden/, to be held beside it.
void VerwachtGouden(std::string_view naam, std::string_view bytes);

}  // namespace lb77
