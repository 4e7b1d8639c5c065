// What a name on the disk is to the system, and its removal and renaming.
#pragma once

#include <filesystem>
#include <system_error>

namespace lb77 {

// As std::filesystem::remove: true when it has removed a file, a link or an empty directory; no error
// for what was not there. A directory with something in it is told as such on every system, and a file
// that may only be read goes like any other. Where a system refuses it while somebody has the file open,
// it is tried again for half a second: a scanner soon lets go.
[[nodiscard]] bool VerwijderVanSchijf(const std::filesystem::path& pad, std::error_code& code);

// The same of a directory with all that lies in it; of what leads to another directory only that.
void VerwijderMapVanSchijf(const std::filesystem::path& map, std::error_code& code);

// As std::filesystem::rename: what has the other name is replaced, and it is tried again likewise.
void HernoemOpSchijf(const std::filesystem::path& van, const std::filesystem::path& naar,
                     std::error_code& code);

// Are both spelled alike for the system, whether there is such a file or not? Where "a" and "A" are one
// name they are, and so are "a" and "a.".
[[nodiscard]] bool IsZelfdeNaam(const std::filesystem::path& een,
                                const std::filesystem::path& ander);

// Is it longer than the system takes, without its saying so? Such a path is not to be used: its
// directory would be another one.
[[nodiscard]] bool IsTeLang(const std::filesystem::path& pad);

// Does that name lead to another file or directory?
[[nodiscard]] bool IsKoppeling(const std::filesystem::path& pad);

// Is it a printer, a terminal, the great nothing: something that takes bytes and is no file on a disk?
[[nodiscard]] bool IsApparaat(const std::filesystem::path& pad);

}  // namespace lb77
