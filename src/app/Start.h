// How the program comes up, before its main window shows.
#pragma once

#include <filesystem>
#include <optional>

#include "app/Hoofdmodule.h"

namespace lb77 {

// The program's directory: the one that was asked for, as the caller's directory sees it; else that
// of the executable when a settings file lies there; else the user's own.
[[nodiscard]] std::filesystem::path ZoekProgrammaMap(
    const std::optional<std::filesystem::path>& gevraagd, const std::filesystem::path& executable,
    const std::filesystem::path& gebruiker);
// The same with the directories that the system tells.
[[nodiscard]] std::filesystem::path ZoekProgrammaMap(
    const std::optional<std::filesystem::path>& gevraagd);

// Everything up to the showing of MenuWindow: trackers, settings, temporary directory, denominations.
// The directory of the process stays as it is. False when the program must end.
[[nodiscard]] bool Start(Hoofdmodule& hoofd);

// Takes the denominations over from the settings.
void VulGezindten(Hoofdmodule& hoofd);

}  // namespace lb77
