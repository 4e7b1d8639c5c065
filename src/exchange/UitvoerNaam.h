// Which files an export must not replace.
#pragma once

#include <filesystem>

namespace lb77 {

class Hoofdmodule;

// One file by two names, or one place where there is no file yet.
[[nodiscard]] bool IsZelfdeBestand(const std::filesystem::path& een,
                                   const std::filesystem::path& ander);

// Is it a file of the settings, of a file set, or of a set's journal?
[[nodiscard]] bool IsEigenBestand(const std::filesystem::path& bestand, const Hoofdmodule& hoofd);

}  // namespace lb77
