// Surnames in which several names stand: each gets series of its own.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contact/GciReeksen.h"

namespace lb77 {

// The first character of a surname that the contact service does not take.
[[nodiscard]] std::optional<char> OngeldigTeken(std::string_view naam);

// A comma or a slash parts names: the left one gets a new row, the right one stays. A row without a
// name goes. False when the table would grow beyond `hoogstens` rows.
[[nodiscard]] bool SplitsNamen(std::vector<GciReeks>& reeksen,
                               std::size_t hoogstens = kMeesteReeksen);

// Brackets stand for two forms of a name, with and without what stands in them: the latter gets a new
// row. A name whose brackets don't fit together goes, and is given to `ongeldig`.
[[nodiscard]] bool LosHaakjesOp(std::vector<GciReeks>& reeksen,
                                const std::function<void(const std::string& naam)>& ongeldig,
                                std::size_t hoogstens = kMeesteReeksen);

}  // namespace lb77
