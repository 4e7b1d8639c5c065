// Record files from elsewhere, a DOS disk for instance: found, and copied into the data directory.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "store/BestandSoort.h"
#include "store/SetPaden.h"
#include "store/SysteemFout.h"

namespace lb77 {

// One family as it lies there. Names are found in any case.
struct OudeSet {
  std::string naam;                          // of its files, in capitals
  std::filesystem::path map;                 // in which they lie
  std::array<std::filesystem::path, 4> pad;  // by IndexVan(soort); empty when there is none
  std::filesystem::path centraal;            // what has its places when it has none of its own

  [[nodiscard]] const std::filesystem::path& Pad(BestandSoort soort) const {
    return pad.at(IndexVan(soort));
  }
};

// The families in that directory and in those directly below it, by name. A family is an ordinary
// person file whose name can be that of a set; links to directories are not followed.
[[nodiscard]] std::vector<OudeSet> ZoekOudeSets(const std::filesystem::path& map);

// The files that it lacks: "Relatiebestand, Plaatsbestand"; empty when it has all it needs.
[[nodiscard]] std::string Ontbrekend(const OudeSet& set);

// Copies its files, under the names of `doel`, with TEKST, INDEX and JOURNAAL, and the places of the
// central file as its own. What arrives is read back and compared with the source. All or nothing:
// the directory of `doel` has its name only when all of it is on the disk, and is a failure when it
// is there already. The source is only read.
[[nodiscard]] SysteemFout KopieerOudeSet(const OudeSet& set, const SetPaden& doel);

// Makes the directory of `doel` a link to where the files lie, which stay there, unless it is that
// very directory; and a copy of the central places beside them when they have none of their own.
// Nothing is written over.
[[nodiscard]] SysteemFout KoppelOudeSet(const OudeSet& set, const SetPaden& doel);

}  // namespace lb77
