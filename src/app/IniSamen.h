// What two runs of the program made of one settings file, put together.
#pragma once

#include <string>
#include <vector>

namespace lb77 {

// All settings in the form of the file, by row of the table and number, as Instellingen holds them.
using IniBeeld = std::vector<std::vector<std::string>>;

// What a run knew when it last read or wrote the file. Empty before that.
struct IniStand {
  IniBeeld eigen;   // its own settings
  IniBeeld schijf;  // what the file held
  IniBeeld uit;     // what it wrote, or would have written
};

// What the file is to hold: what this run changed since then, and of everything else what another
// one changed. `nu` are the settings of this run, `schijf` those of the file. The list of sets is put
// together set by set, so that one that was added in either run stays and one that was removed goes.
// The active set and its description stay together.
[[nodiscard]] IniBeeld VoegSamen(const IniStand& stand, const IniBeeld& nu, const IniBeeld& schijf);

}  // namespace lb77
