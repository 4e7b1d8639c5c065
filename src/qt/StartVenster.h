// The desktop program's frame: the application object and the last net under the program.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Gesprek.h"

namespace lb77 {

// What the frame starts.
struct Vensterprogramma {
  // Gives the program's directory, once the application object exists.
  std::function<std::filesystem::path()> map;
  // Runs the program, from its start-up questions to the end of its main window. Before it lets an
  // error go it saves what must not be lost.
  std::function<void(Gesprek&, const std::filesystem::path& map)> voer;
  // Reads the words behind the program's name, in UTF-8 and without those of the toolkit; gives the
  // exit status when there is nothing to run. May be empty.
  std::function<std::optional<int>(const std::vector<std::string>&)> aanroep{};
};

// Makes the application object, runs the program and gives the exit status: 0, or 1 after an error
// that nobody caught, which is then told to the user.
[[nodiscard]] int StartVenster(int argc, char** argv, const Vensterprogramma& programma);

// The same within an application object that exists.
[[nodiscard]] int VoerMetVangnet(const Vensterprogramma& programma);

}  // namespace lb77
