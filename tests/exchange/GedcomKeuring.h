// A reader of GEDCOM 5.5 that knows the standard and nothing of this program.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

struct GedcomBeeld {
  std::vector<std::string> fouten;  // lines, levels, ids and links that no reader can make out
  std::set<std::string> vreemd;     // paths that the standard does not have, "FAM-MARR-LMAR"
  std::map<std::string, int> tags;  // how often each path occurs
};

// Looks at each line (CR LF, level, tag), at ids that come twice or lead to nothing, and at links
// that have none in the opposite direction (HUSB, WIFE and FAMS, CHIL and FAMC).
[[nodiscard]] GedcomBeeld KeurGedcom(std::string_view bytes);

}  // namespace lb77
