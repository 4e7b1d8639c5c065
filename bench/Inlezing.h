// An import with or without a journal, to measure what the journal costs.
#pragma once

#include <filesystem>

#include "Meetset.h"

namespace lb77::bench {

// Without one there is no safety copy at the first write either.
enum class MetJournaal { Ja, Nee };

// Imports into the set by a whole session. Throws std::runtime_error when it fails.
void LeesIn(const Meetset& set, const std::filesystem::path& gedcom, MetJournaal journaal);

}  // namespace lb77::bench
