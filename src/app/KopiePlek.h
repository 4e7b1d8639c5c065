// Where the safety copies of a set lie: under the program, and in a place of the user's own choice.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "store/SysteemFout.h"

namespace lb77 {

// The directories with the copies of a set; none of them need be there.
struct KopieMappen {
  std::vector<std::filesystem::path> mappen;  // new copies come in the first
  std::filesystem::path weg;  // the chosen place when it is not there now; else empty
};

// The place that the user chose, a stick for instance, from the file KOPIE.PAD in the program's
// directory; empty when there is none.
[[nodiscard]] std::filesystem::path KopiePlek(const std::filesystem::path& programmaMap);

// Stores it; an empty one is no choice. A path that cannot be stored is a failure. After a failure
// the last choice holds.
[[nodiscard]] SysteemFout BewaarKopiePlek(const std::filesystem::path& programmaMap,
                                          const std::filesystem::path& plek);

// Below `plek`, when it is a directory, and else below KOPIE in the program's directory. A place that
// is not there is not made: where a stick was, it would be made on the disk.
[[nodiscard]] KopieMappen KopieMappenIn(const std::filesystem::path& programmaMap,
                                        const std::filesystem::path& plek, std::string_view set);

}  // namespace lb77
