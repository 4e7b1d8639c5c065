// The settings in memory: what the settings file holds, and nothing else.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "app/IniSamen.h"

namespace lb77 {

// One value a setting, by its row in the table of all settings (app/Sleutels.h). IniClass alone
// reads and changes them, by section and key; all its instances on one block see the same values.
// The exception is Tekstbr, which reports read as a number.
struct Instellingen {
  // Of a row its values: one at index 0 for a plain setting, 1 to n for a numbered list. The rows
  // that hold paths and the prefix lists have theirs elsewhere.
  std::vector<std::vector<std::string>> waarden;
  // Of a row that holds a path the path, which may have characters outside Windows-1252.
  std::vector<std::filesystem::path> paden;
  // False for a session that changes its settings for itself alone: nothing is written.
  bool bewaren = true;
  // Where temporary files lie in this session; empty: where the settings say.
  std::filesystem::path tijdelijk;
  // What the settings file and this run had when it was last read or written.
  IniStand stand;
  // The user answered a failure of the settings file with Cancel: the program must end.
  bool eindeGevraagd = false;

  // Characters a line of text output: 0 when no settings file has told it.
  [[nodiscard]] std::int16_t Tekstbr() const;
};

}  // namespace lb77
