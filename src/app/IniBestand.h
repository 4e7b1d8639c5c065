// The form of the settings file: sections, lines "key=value", and how a new one takes its place.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "app/HeelBestand.h"
#include "app/Sleutels.h"
#include "store/SysteemFout.h"

namespace lb77 {

inline constexpr std::string_view kIniBestand = "LIJNBOOM.INI";
inline constexpr std::string_view kIniReserve = "LB77_INI.BAK";

// Calls `pas` with section, key and value, in the order of the lines. A line that is neither a
// header nor "key=value" repeats the pair before it.
void LeesIniRegels(
    std::string_view inhoud,
    const std::function<void(std::string_view, std::string_view, std::string_view)>& pas);

// The whole text of the file, with CR LF line ends. `waarde` gives the stored form of a value; the
// empty entries of the numbered lists are left out.
[[nodiscard]] std::string IniRegels(const std::function<std::string(SleutelPlaats)>& waarde);

// The whole settings file in that directory, found under any case of its name.
[[nodiscard]] SysteemFout LeesIniBestand(const std::filesystem::path& map, std::string& inhoud);

// Makes the file anew: the last one becomes the backup. The lines are written beside it first, so
// that after any failure the last file is still there, and its backup unless the two changed places.
[[nodiscard]] SchrijfUitslag SchrijfIniBestand(const std::filesystem::path& map,
                                               std::string_view inhoud);

}  // namespace lb77
