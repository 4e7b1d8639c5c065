// A reader of GEDCOM 5.5.1 that knows the standard and nothing of this program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

// What a file does against the standard, a line each; empty for one that keeps it. Looked at: the
// byte-order mark, UTF-8, line ends and lengths, levels, ids and links, which tags may stand where and
// how often, the form of values, and CONC. Tags that begin with "_" may stand anywhere.
// `metTerugwegen`: a link must have its opposite (FAMC and CHIL, FAMS and HUSB or WIFE).
[[nodiscard]] std::vector<std::string> GrammaticaFouten(std::string_view bytes, bool metTerugwegen);

}  // namespace lb77
