// How many persons a set holds, whether or not it is the active one.
#pragma once

#include <optional>
#include <string_view>

#include "app/Hoofdmodule.h"

namespace lb77 {

// Nothing when its person file is not there or does not open. Nothing is made or changed.
[[nodiscard]] std::optional<int> AantalPersonen(Hoofdmodule& hoofd, std::string_view set);

}  // namespace lb77
