// Sets that go out as GEDCOM 5.5.1 and come in again, and what they hold.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/SelectieLijst.h"
#include "steun/ProefSet.h"

namespace lb77 {

// An export in memory: the lines of file and log, each ended by a line feed.
struct Ged551Uitvoer {
  std::string bestand;  // UTF-8, with its byte-order mark
  std::string log;      // Windows-1252

  // The lines of the record that begins with that line, or of the head, without that line.
  [[nodiscard]] std::string Van(std::string_view begin) const;
};

// All persons and relations, continuation records included.
[[nodiscard]] ExpSelectie AllesVan(ProefSet& set);
[[nodiscard]] Ged551Uitvoer Exporteer551(ProefSet& set, const ExpSelectie& selectie);
[[nodiscard]] inline Ged551Uitvoer Exporteer551(ProefSet& set) {
  return Exporteer551(set, AllesVan(set));
}

// Runs the passes of the import over a file of these bytes; gives its log and warnings, each line
// ended by a line feed; in `niet` the lines that were not stored whole.
std::string LeesIn(ProefSet& set, std::string_view bytes, std::string* niet = nullptr);

// All that a set holds, a line a record or remark. Links are told by the place of their record among
// the persons or relations, as the numbers may differ.
[[nodiscard]] std::vector<std::string> Beschrijf(ProefSet& set);

}  // namespace lb77
