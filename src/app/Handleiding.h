// The manual in front of the user.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "forms/Gesprek.h"

namespace lb77 {

// Shows the manual at the chapter `onderwerp`, at its beginning for none. It is looked for in the
// directories `installatie`; in `temp` a small page is made that leads to the chapter. Says so when
// the manual is not there, and where it lies when there is no browser to show it in.
void ToonHandleiding(Gesprek& gesprek, const std::vector<std::filesystem::path>& installatie,
                     const std::filesystem::path& temp, std::string_view onderwerp);

}  // namespace lb77
