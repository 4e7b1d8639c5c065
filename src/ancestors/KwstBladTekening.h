// The two layouts of a printed sheet, drawn in 79 columns: one of 80 would take a second page.
#pragma once

#include "ancestors/KwstBladTekst.h"
#include "ancestors/KwstOpties.h"
#include "output/Tekenvel.h"

namespace lb77 {

inline constexpr int kBladBreedte = 79;
// The rows that title and closing lines leave of a page when each of them is one line.
inline constexpr int kBladRijen = 61;

// CBG: the root at the left, fathers above and mothers below their child, each generation further to
// the right. HSK: the last generation at the top in four columns, and lines down to the root below.
// Never more than `rijen` rows, which may be up to five less than kBladRijen.
[[nodiscard]] Tekenvel TekenBlad(const BladTeksten& teksten, Bladvorm vorm, int rijen);

}  // namespace lb77
