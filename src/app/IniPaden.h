// Paths in the settings file, and paths that moved with the program.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lb77 {

// The path as a line of the settings file: Windows-1252 when it comes back from there as itself,
// else UTF-8.
[[nodiscard]] std::string PadRegel(const std::filesystem::path& pad);

// A line of the settings file as a path: UTF-8 when it has characters outside ASCII and is valid
// UTF-8, else Windows-1252.
[[nodiscard]] std::filesystem::path PadVanRegel(std::string_view regel);

// The path with `nieuw` in the place of `oud` when it begins with `oud`, else the path itself. An
// empty `oud` begins nothing. Of an `oud` that was written on a system with "\" between the names,
// that character separates here too.
[[nodiscard]] std::filesystem::path Herplaatst(const std::filesystem::path& pad,
                                               const std::filesystem::path& oud,
                                               const std::filesystem::path& nieuw);

}  // namespace lb77
