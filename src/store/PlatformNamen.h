// Removing and renaming what has a name on the disk.
#pragma once

#include <filesystem>
#include <system_error>

namespace lb77 {

// As std::filesystem::remove: true when it has removed a file, a link or an empty directory; no error
// for what was not there. A directory with something in it is told as such on every system.
[[nodiscard]] bool VerwijderVanSchijf(const std::filesystem::path& pad, std::error_code& code);

// As std::filesystem::rename: what has the other name is replaced. Where a system refuses that while
// somebody has the file open, it is tried again for half a second: a scanner soon lets go.
void HernoemOpSchijf(const std::filesystem::path& van, const std::filesystem::path& naar,
                     std::error_code& code);

}  // namespace lb77
