// The desktop program.
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "app/Installatie.h"
#include "app/Klok.h"
#include "app/Start.h"
#include "program/Aanroep.h"
#include "program/Vensterloop.h"
#include "qt/StartVenster.h"
#include "store/Platform.h"
#include "store/PlatformUitvoer.h"

int main(int argc, char** argv) {
  lb77::VulStandaardstromen();
  // Without the program's own name, which a caller may leave out.
  const std::vector<std::string> woorden(argv + (argc > 0 ? 1 : 0), argv + argc);
  if (lb77::BeantwoordAanroep(woorden, std::cout)) return 0;
  lb77::Aanroep aanroep;
  return lb77::StartVenster(
      argc, argv,
      {.map = [&aanroep] { return lb77::ZoekProgrammaMap(aanroep.map); },
       .voer =
           [&aanroep](lb77::Gesprek& gesprek, const std::filesystem::path& map) {
             const lb77::SysteemKlok klok;
             lb77::VoerVoorGebruiker(
                 gesprek, klok,
                 {map, lb77::InstallatieMappen(lb77::ProgrammaMap()), aanroep.bestand});
           },
       .aanroep =
           [&aanroep](const std::vector<std::string>& over) {
             aanroep = lb77::LeesAanroep(over, std::cerr);
             return aanroep.status;
           }});
}
