// The desktop program.
#include <filesystem>
#include <optional>

#include "app/Klok.h"
#include "app/Start.h"
#include "program/Programma.h"
#include "qt/StartVenster.h"

namespace {

void Voer(lb77::Gesprek& gesprek, const std::filesystem::path& map) {
  const lb77::SysteemKlok klok;
  lb77::VoerProgramma(gesprek, klok, map);
}

}  // namespace

int main(int argc, char** argv) {
  return lb77::StartVenster(
      argc, argv, {.map = [] { return lb77::ZoekProgrammaMap(std::nullopt); }, .voer = Voer});
}
