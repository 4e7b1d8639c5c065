// Safety copies of an open file set: made, listed, and put back.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/Klok.h"
#include "store/BestandSoort.h"
#include "store/Opslag.h"
#include "store/SetPaden.h"
#include "store/SysteemFout.h"

namespace lb77 {

// The present moment of that clock as "jjjj-mm-dd uu:mm:ss".
[[nodiscard]] std::string TijdTekst(const Klok& klok);

// The records of a copy; of persons and relations without continuations.
struct KopieTelling {
  int personen = 0;
  int relaties = 0;
  int plaatsen = 0;
  int opmerkingen = 0;
};

struct KopieRij {
  std::string naam;                     // of its directory: "jjjj-mm-dd_uummss"
  std::string tijd;                     // "jjjj-mm-dd uu:mm:ss"
  std::optional<KopieTelling> telling;  // nothing when it does not open
};

// The row for the user: the time and the counts.
[[nodiscard]] std::string KopieTekst(const KopieRij& rij);

// Where the copies of a set lie, under the program's directory; nothing is made.
[[nodiscard]] std::filesystem::path KopieMap(const std::filesystem::path& programmaMap,
                                             std::string_view set);

// A copy holds the four files and TEKST. It has its name only when all of it is on the disk, has
// been compared byte for byte, and opens.
class Veiligheidskopie {
 public:
  // Of the set with these paths, whose files are open; `map` holds its copies. References are kept.
  Veiligheidskopie(const Opslag& opslag, const Klok& klok, SetPaden paden,
                   std::filesystem::path map);

  // Where the copies lie.
  [[nodiscard]] const std::filesystem::path& Map() const { return map_; }

  // Makes one, and lets go of the old ones: the last ten stay, and the last of each month for two
  // years.
  [[nodiscard]] SysteemFout Maak();
  // The same, unless the last one holds these very bytes.
  [[nodiscard]] SysteemFout MaakZonodig();
  // All of them, the last one first.
  [[nodiscard]] std::vector<KopieRij> Lijst();
  // The name of the last one; empty when there is none.
  [[nodiscard]] std::string Laatste() const;
  // Makes the four files what they are in that copy, as one action, after a copy of what is there.
  // After a failure they are as they were.
  [[nodiscard]] SysteemFout ZetTerug(const std::string& naam);

 private:
  struct Bestand {
    BestandSoort soort;
    std::filesystem::path pad;  // of the set
    std::filesystem::path naam;
  };
  [[nodiscard]] std::vector<std::string> Namen() const;
  [[nodiscard]] SysteemFout MaakIn(const std::filesystem::path& doel);
  [[nodiscard]] std::string NieuweNaam() const;
  [[nodiscard]] bool IsGelijk(const std::string& naam) const;
  [[nodiscard]] std::optional<KopieTelling> Tel(const std::filesystem::path& kopie);
  void Ruim() const;

  Opslag opslag_;
  const Klok& klok_;
  SetPaden paden_;
  std::filesystem::path map_;
  std::vector<Bestand> bestanden_;
};

}  // namespace lb77
