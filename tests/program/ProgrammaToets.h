// The whole program in a directory of its own.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include "program/Programma.h"
#include "steun/SpeelToets.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {

// Each Programma() is a session on the same directory.
class ProgrammaToets : public SpeelToets {
 protected:
  // Writes a settings file and the set PROEF with a small family; person 2 is its proband.
  void MaakFamilie();
  // The program from its start to its end.
  [[nodiscard]] SpeelToets::Programma Sessie();
  // A session that has come up with its last set open, and whose main window does not show.
  [[nodiscard]] SpeelToets::Programma Met(std::function<void(lb77::Programma&)> doe);
  [[nodiscard]] const std::filesystem::path& Map() const { return map_.Pad(); }

 private:
  TijdelijkeMap map_;
  VasteKlok klok_{{2026, 11, 21, 12, 0, 0}};
};

}  // namespace lb77
