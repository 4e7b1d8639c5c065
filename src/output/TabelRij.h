// A row of a table: columns of positions in text, cells in HTML.
#pragma once

#include <string>
#include <vector>

#include "text/Namen.h"

namespace lb77 {

class TekstSchrijver;

// One cell. To the left a text is padded and cut to its width; to the right it is padded, and never
// loses anything. Width 0 leaves it as it is.
struct TabelCel {
  std::string tekst;
  int breedte = 0;
  Richting richting = Richting::Links;
  bool vet = false;       // strong, in HTML
  std::string link = {};  // the address it leads to, in HTML; around the text without its blanks
};

// Writes the row, on one line in text; in HTML between lines "<TR>" and "</TR>", each cell encoded.
// The writer must be as wide as the row.
void SchrijfTabelRij(TekstSchrijver& uit, const std::vector<TabelCel>& cellen);

}  // namespace lb77
