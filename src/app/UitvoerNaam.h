// Which files no output may replace.
#pragma once

#include <filesystem>
#include <string>

#include "app/IniClass.h"
#include "store/SetPaden.h"

namespace lb77 {

// One file by two names, or one place where there is no file yet.
[[nodiscard]] bool IsZelfdeBestand(const std::filesystem::path& een,
                                   const std::filesystem::path& ander);

// Is it one of the files that hold the records of that set?
[[nodiscard]] bool IsVanSet(const std::filesystem::path& bestand, const SetPaden& paden);

// What that file is to the program when no output may replace it: "het bestand met instellingen",
// "een bestand van bestandenset FAM". Empty for any other file.
[[nodiscard]] std::string BeschermdeRol(const std::filesystem::path& bestand,
                                        const std::filesystem::path& programmaMap,
                                        const IniClass& ini);

// What no output of a dialog may replace: what belongs to the open set, or has a BeschermdeRol.
// References only.
struct Beschermd {
  const std::filesystem::path& programmaMap;
  const IniClass& ini;
  const std::string& actieveSet;

  [[nodiscard]] bool Bevat(const std::filesystem::path& bestand) const;
};

}  // namespace lb77
