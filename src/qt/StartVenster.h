// The desktop program's frame around the composition root.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include "forms/Gesprek.h"

namespace lb77 {

/// What the frame needs of the program.
struct Programma {
  /// The program's directory, asked for once the executable's own directory is known.
  std::function<std::filesystem::path(const std::filesystem::path& uitvoerbaarBestand)> map;
  /// Runs the program, from its start-up questions to the end of its main window.
  std::function<void(Gesprek&, const std::filesystem::path& map)> voer;
  /// The last net: saves the settings after an error that nobody caught. May be empty.
  std::function<void()> red;
};

/// Makes the application object, runs the program and gives the exit status: 0, or 1 after an error
/// that nobody caught, which is then told to the user.
[[nodiscard]] int StartVenster(int argc, char** argv, const Programma& programma);

/// The same within an application object that exists.
[[nodiscard]] int VoerProgramma(const Programma& programma, const std::filesystem::path& bestand);

}  // namespace lb77
