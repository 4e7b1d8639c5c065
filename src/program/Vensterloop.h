// The program in front of a user, from the first window to the end of the main window.
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "app/Klok.h"
#include "forms/Gesprek.h"

namespace lb77 {

// How the program was started.
struct Opstart {
  std::filesystem::path programmaMap;
  std::vector<std::filesystem::path> installatie;  // where that lies which came with the program
  std::optional<std::filesystem::path> bestand;    // a GEDCOM file to begin with
};

// Without settings it begins with the window of welcome, which makes them. The main window has its
// start page, and takes GEDCOM files. A script takes VoerProgramma, and meets none of this.
void VoerVoorGebruiker(Gesprek& gesprek, const Klok& klok, const Opstart& opstart);

}  // namespace lb77
