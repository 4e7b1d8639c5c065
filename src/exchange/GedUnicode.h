// Is the text of a GEDCOM file Unicode?
#pragma once

#include "exchange/RegelLezer.h"

namespace lb77 {

// By the byte-order mark, else by the CHAR line: UTF-8 and UNICODE are. A file without that line, or
// with ANSI, is when all of it is valid UTF-8 with at least one sequence of several bytes. Bytes for
// any other. Reads from where the reader stands, no further than it must.
[[nodiscard]] Codering CoderingVan(RegelLezer& lezer);

}  // namespace lb77
