// Files and directories that exist under another case.
#pragma once

#include <filesystem>

namespace lb77 {

// The path of an existing file or directory. A component that does not exist is looked for under
// another case; what lies behind one that is not found at all stays as given.
std::filesystem::path VindPad(const std::filesystem::path& pad);

}  // namespace lb77
