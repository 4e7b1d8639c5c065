// Where that lies which came with the program: the sample family, the manual.
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

namespace lb77 {

// The sample family, in one of these directories.
inline constexpr const char* kVoorbeeldGedcom = "voorbeeld/oranje-nassau.ged";

// The manual as a page for a browser, and as it was written where no page could be made.
inline constexpr const char* kHandleidingPagina = "handleiding.html";
inline constexpr const char* kHandleidingTekst = "handleiding.md";

// The directories to look in, for a program whose executable lies in `executable`: beside it, on a
// stick for instance, and where a package installs.
[[nodiscard]] std::vector<std::filesystem::path> InstallatieMappen(
    const std::filesystem::path& executable);

// The first of them that has `naam`; nothing when none has.
[[nodiscard]] std::optional<std::filesystem::path> VindInstallatie(
    const std::vector<std::filesystem::path>& mappen, const std::filesystem::path& naam);

}  // namespace lb77
