// Where the files of a file set lie.
#pragma once

#include <filesystem>
#include <string_view>

namespace lb77 {

// All paths of one set, spelled as a new set has them. Pass them through VindPad before use.
struct SetPaden {
  std::filesystem::path map;       // <data>/<SET>
  std::filesystem::path prs;       // persons
  std::filesystem::path rlt;       // relations
  std::filesystem::path opm;       // remarks
  std::filesystem::path plt;       // the set's own places
  std::filesystem::path centraal;  // <data>/PLAATS.PLT, for a set whose own places don't open
  std::filesystem::path tekst;     // directory of text output
  std::filesystem::path index;     // directory of index output

  // The paths of the set `naam` (Windows-1252, any case) under the data directory.
  static SetPaden Van(const std::filesystem::path& data, std::string_view naam);
};

}  // namespace lb77
