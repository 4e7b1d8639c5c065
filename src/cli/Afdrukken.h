// Where the output of a command goes: standard output, or a file.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "app/IniClass.h"
#include "store/SysteemFout.h"

namespace lb77 {

// The text file onto `uit`, in UTF-8 with plain line ends.
void DrukUit(const std::filesystem::path& bron, std::ostream& uit);

// The program's own bytes in a file. What it held is there until the copy is whole; a device is
// written to.
[[nodiscard]] SysteemFout BewaarAls(const std::filesystem::path& bron,
                                    const std::filesystem::path& naar);

// What that file is to the program when no output may replace it: "het bestand met instellingen",
// "een bestand van bestandenset FAM". Empty for any other file.
[[nodiscard]] std::string BeschermdeRol(const std::filesystem::path& bestand,
                                        const std::filesystem::path& programmaMap,
                                        const IniClass& ini);

}  // namespace lb77
