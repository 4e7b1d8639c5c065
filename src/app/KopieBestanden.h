// Whole files: copied and compared, and put in the place of the open ones.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "store/Bestandenset.h"
#include "store/SysteemFout.h"

namespace lb77 {

// All bytes of a file; nothing is made.
[[nodiscard]] SysteemFout LeesAlles(const std::filesystem::path& pad, std::string& bytes);

// Makes `doel`, on the disk itself, and reads it back: other bytes are a failure.
[[nodiscard]] SysteemFout KopieerBestand(const std::filesystem::path& bron,
                                         const std::filesystem::path& doel);

// True when both could be read and hold the same bytes.
[[nodiscard]] bool ZelfdeBytes(const std::filesystem::path& een,
                               const std::filesystem::path& ander);

// The same with all ordinary files below a directory; an absent one has none. Of a symbolic link
// nothing is copied.
[[nodiscard]] SysteemFout KopieerMap(const std::filesystem::path& bron,
                                     const std::filesystem::path& doel);

// The ordinary files below a directory by their paths in it.
using MapInhoud = std::map<std::filesystem::path, std::string>;

// All of them; an absent directory has none. Symbolic links are passed over.
[[nodiscard]] SysteemFout LeesMap(const std::filesystem::path& map, MapInhoud& inhoud);

// True when below both there are the same files with the same bytes.
[[nodiscard]] bool ZelfdeMap(const std::filesystem::path& een, const std::filesystem::path& ander);

// Puts these files in the directory, each at once in the place of what has its name; `gewijzigd` when
// any was another. What else is there stays. The first failure ends it.
[[nodiscard]] SysteemFout SchrijfMap(const std::filesystem::path& map, const MapInhoud& inhoud,
                                     bool& gewijzigd);

// Makes the open files hold exactly these bytes, as one action of that label. After a failure they
// are as they were, unless the journal tells of an unfinished action. `nietVeilig` is set when they
// do hold them and the journal could not end the action yet.
[[nodiscard]] SysteemFout VervangInhoud(Bestandenset& bestanden,
                                        const std::map<BestandSoort, std::string>& inhoud,
                                        std::string_view label, SysteemFout& nietVeilig);

}  // namespace lb77
