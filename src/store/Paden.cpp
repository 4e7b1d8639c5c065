#include "store/Paden.h"

#include <algorithm>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {

namespace fs = std::filesystem;

namespace {

// Nothing for a name with half characters, which Windows can have.
std::optional<std::string> Utf8Van(const fs::path& pad) {
  try {
    const std::u8string utf8 = pad.u8string();
    return std::string(utf8.begin(), utf8.end());
  } catch (const fs::filesystem_error&) {
    return std::nullopt;
  }
}

// The name with its letters as Windows-1252 has them; nothing when it has others, so that a name
// is never found by what merely resembles it.
std::optional<std::string> Vergelijkbaar(const fs::path& naam) {
  const std::optional<std::string> gelezen = Utf8Van(naam);
  if (!gelezen) return std::nullopt;
  const std::string& utf8 = *gelezen;
  std::optional<std::string> windows = Utf8NaarWindows(utf8);
  if (windows && WindowsNaarUtf8(*windows) != utf8) return std::nullopt;
  return windows;
}

bool Bestaat(const fs::path& pad) {
  std::error_code fout;
  return fs::exists(pad, fout);
}

// The first entry of a directory, in order of name, that has this name in another case.
std::optional<fs::path> ZoekInMap(const fs::path& map, const fs::path& naam) {
  const std::optional<std::string> gezocht = Vergelijkbaar(naam);
  if (!gezocht) return std::nullopt;
  std::vector<fs::path> gevonden;
  std::error_code fout;
  fs::directory_iterator plek(map.empty() ? fs::path(".") : map, fout);
  for (; !fout && plek != fs::directory_iterator(); plek.increment(fout)) {
    const std::optional<std::string> deze = Vergelijkbaar(plek->path().filename());
    if (deze && GelijkZonderKast(*deze, *gezocht)) gevonden.push_back(plek->path().filename());
  }
  if (gevonden.empty()) return std::nullopt;
  return map / *std::min_element(gevonden.begin(), gevonden.end());
}

}  // namespace

fs::path VindPad(const fs::path& pad) {
  if (pad.empty() || Bestaat(pad)) return pad;
  fs::path resultaat = pad.root_path();
  bool gevonden = true;
  for (const fs::path& deel : pad.relative_path()) {
    std::optional<fs::path> ander;
    if (gevonden && !Bestaat(resultaat / deel)) {
      ander = ZoekInMap(resultaat, deel);
      gevonden = ander.has_value();
    }
    resultaat = ander ? *ander : resultaat / deel;
  }
  return resultaat;
}

}  // namespace lb77
