// Record files from elsewhere, a DOS disk for instance: found, and copied into the data directory.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
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

// A directory that could not be searched.
struct OnleesbareMap {
  std::filesystem::path map;
  SysteemFout fout;
};

// The families in that directory and in those directly below it, by name. A family is an ordinary
// person file whose name can be that of a set; links to directories are not followed. `onleesbaar`
// tells of the first directory that could not be read.
[[nodiscard]] std::vector<OudeSet> ZoekOudeSets(const std::filesystem::path& map,
                                                OnleesbareMap* onleesbaar = nullptr);

// The names of the sets that lie in a data directory as the program itself has them, in order; links
// to directories are followed.
[[nodiscard]] std::vector<std::string> SetsIn(const std::filesystem::path& data);

// The set with those paths, when its person file is there.
[[nodiscard]] std::optional<OudeSet> OudeSetVan(const SetPaden& paden);

// The files that it lacks: "Relatiebestand, Plaatsbestand"; empty when it has all it needs.
[[nodiscard]] std::string Ontbrekend(const OudeSet& set);

// Copies its files, under the names of `doel`, with TEKST, INDEX and its journal, and the places of the
// central file as its own. Each keeps the time at which it was last changed. What arrives is read back and compared with the source. All or nothing:
// the directory of `doel` has its name only when all of it is on the disk, and is a failure when it
// is there already. The source is only read.
[[nodiscard]] SysteemFout KopieerOudeSet(const OudeSet& set, const SetPaden& doel);

// Makes the directory of `doel` a link to where the files lie, which stay there, unless it is that
// very directory; and a copy of the central places beside them when they have none of their own.
// Nothing is written over. A failure leaves nothing behind.
[[nodiscard]] SysteemFout KoppelOudeSet(const OudeSet& set, const SetPaden& doel);

// Does the directory of `doel` lead to where the set lies?
[[nodiscard]] bool LigtErAl(const OudeSet& set, const SetPaden& doel);

// Takes away what was made just now, when the set could not be opened after all, and nothing else:
// the copy, or the link (unless the set lay there already) with the places beside the files.
void RuimKopie(const SetPaden& doel);
void RuimKoppeling(const OudeSet& set, const SetPaden& doel, bool lagErAl);

}  // namespace lb77
