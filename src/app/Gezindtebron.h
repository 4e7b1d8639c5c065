// Denominations that stand in the settings of another program or another computer.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/IniClass.h"

namespace lb77 {

// The settings file that belongs to record files: in their directory, or in one of the two above it.
// Empty when there is none but our own, which lies in `programmaMap`.
[[nodiscard]] std::filesystem::path InstellingenBij(const std::filesystem::path& map,
                                                    const std::filesystem::path& programmaMap);

// Puts its denominations in the free rows of the list, but for those whose code the list has already,
// and keeps the settings when there were any. Gives what it could not take, as "DG (Doopsgezind)":
// codes that stand here for another name, and those without room. A file that cannot be read has none.
[[nodiscard]] std::vector<std::string> NeemGezindten(IniClass& ini,
                                                     const std::filesystem::path& instellingen);

}  // namespace lb77
