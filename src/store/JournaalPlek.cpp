#include "store/JournaalPlek.h"

#include <string>
#include <system_error>

#include "store/Paden.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace fs = std::filesystem;

namespace {

constexpr const char* kJournaal = "JOURNAAL";

bool Heet(const fs::path& naam, std::string_view tekst) {
  return GelijkZonderKast(PadTekst(naam), tekst);
}

// The name of the directory itself, whatever links lead to it.
fs::path EigenNaam(const fs::path& map) {
  std::error_code code;
  const fs::path echt = fs::canonical(map, code);
  return (code ? map : echt).filename();
}

bool IsMap(const fs::path& pad) {
  std::error_code code;
  return fs::is_directory(pad, code);
}

}  // namespace

bool IsEnigeSet(const fs::path& map, std::string_view set) {
  std::error_code code;
  fs::directory_iterator plek(map, code);
  for (; !code && plek != fs::directory_iterator(); plek.increment(code)) {
    const fs::path& naam = plek->path();
    std::error_code weg;
    if (Heet(naam.extension(), ".PRS") && !Heet(naam.stem(), set) && plek->is_regular_file(weg)) {
      return false;
    }
  }
  return !code;
}

fs::path JournaalPlek(const fs::path& map, std::string_view set) {
  fs::path gewoon = VindPad(map / kJournaal);
  fs::path eigen = VindPad(map / PadVan(std::string(kJournaal) + "." + Hoofdletters(set)));
  if (IsMap(eigen)) return eigen;
  if (Heet(EigenNaam(map), set)) return gewoon;
  // A directory that got another name since.
  return IsMap(gewoon) && IsEnigeSet(map, set) ? gewoon : eigen;
}

}  // namespace lb77
