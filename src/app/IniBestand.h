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

// True when settings lie in that directory, if only as a copy from which the file can be made.
[[nodiscard]] bool HeeftInstellingen(const std::filesystem::path& map);

// The settings file as it was read.
struct IniGelezen {
  SysteemFout fout;
  std::string inhoud;   // empty after a failure
  std::string melding;  // when the file had to be made again from a copy: what the user is told
};

// The whole settings file in that directory, found under any case of its name and through a symbolic
// link. One that is missing, empty or cut short is made again from what was written beside it last,
// or from the backup; without either it is what it is. Cut is a file that ends before this program's
// last line, has all lines before that end in their order, and has a whole copy: a whole file of an
// older version is never taken for one. What was cut is kept under another name.
[[nodiscard]] IniGelezen LeesIniBestand(const std::filesystem::path& map, Bestandswerk& werk);
// The same; without `herstel` nothing on the disk is changed, and the copy is read instead.
[[nodiscard]] IniGelezen LeesIniBestand(const std::filesystem::path& map, bool herstel = true);

// Gives the new text from the one on the disk, nullptr when that is missing, empty or cut short.
using IniMaker = std::function<std::string(const std::string* huidig)>;

// Makes the file anew while no other program does: the text is written beside it and brought to the
// disk, the last file becomes the backup under a second name, and one renaming puts the new one in
// its place. So whenever it stops there is a whole file, and after a failure that is the last one.
// Where nothing can be made in the directory, the file is written over.
[[nodiscard]] SchrijfUitslag SchrijfIniBestand(const std::filesystem::path& map,
                                               const IniMaker& maker, Bestandswerk& werk);
[[nodiscard]] SchrijfUitslag SchrijfIniBestand(const std::filesystem::path& map,
                                               const IniMaker& maker);

}  // namespace lb77
