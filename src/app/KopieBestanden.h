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

// The same with all ordinary files below a directory; an absent one has none. Of a symbolic link
// nothing is copied.
[[nodiscard]] SysteemFout KopieerMap(const std::filesystem::path& bron,
                                     const std::filesystem::path& doel);

// Makes the open files hold exactly these bytes, as one action of that label. After a failure they
// are as they were, unless the journal tells of an unfinished action.
[[nodiscard]] SysteemFout VervangInhoud(Bestandenset& bestanden,
                                        const std::map<BestandSoort, std::string>& inhoud,
                                        std::string_view label);

}  // namespace lb77
