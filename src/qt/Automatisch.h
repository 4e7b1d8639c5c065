// A sensible layout for a form that has none of its own.
#pragma once

#include <vector>

#include "forms/Bediening.h"
#include "qt/Indeling.h"

namespace lb77 {

// Fields in two columns with their prompts on the left, rows of controls in a table, pages over
// the whole width, buttons at the bottom right; all in the order given.
[[nodiscard]] Blok AutomatischeIndeling(const std::vector<Bediening*>& bedieningen);

}  // namespace lb77
