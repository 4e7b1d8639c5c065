// Where the output of a command goes: standard output, or a file.
#pragma once

#include <filesystem>
#include <iosfwd>

#include "store/SysteemFout.h"

namespace lb77 {

// The text file onto `uit`, in UTF-8 with plain line ends.
void DrukUit(const std::filesystem::path& bron, std::ostream& uit);

// The program's own bytes in a file. What it held is there until the copy is whole; a device is
// written to.
[[nodiscard]] SysteemFout BewaarAls(const std::filesystem::path& bron,
                                    const std::filesystem::path& naar);

}  // namespace lb77
