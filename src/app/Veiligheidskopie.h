// Safety copies of an open file set: made, listed, and put back.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/Klok.h"
#include "app/KopiePlek.h"
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

// What came of putting a copy back.
struct TerugUitslag {
  SysteemFout fout;        // then the four files are as they were, and TEKST too
  SysteemFout nietVeilig;  // all is in its place, but the journal could not end the action yet
  bool tekst = false;      // something in TEKST was replaced
  SysteemFout tekstFout;   // then not all of TEKST is back
  std::filesystem::path vorige;  // the copy of what was there
};

// That TEKST was touched, and where it lies as it was; empty when it was not.
[[nodiscard]] std::string TekstUitleg(const TerugUitslag& uitslag);

// A copy holds the four files and TEKST. It has its name only when all of it is on the disk, has
// been compared byte for byte, and opens.
class Veiligheidskopie {
 public:
  // Of the set with these paths, whose files are open; `plekken` has at least one directory.
  // References are kept.
  Veiligheidskopie(const Opslag& opslag, const Klok& klok, SetPaden paden, KopieMappen plekken);

  // Where new copies come.
  [[nodiscard]] const std::filesystem::path& Map() const { return plekken_.mappen.front(); }
  // The place that the user chose for them when it is not there now; else empty.
  [[nodiscard]] const std::filesystem::path& Weg() const { return plekken_.weg; }

  // Makes one, and lets go of the old ones beside it: the last ten stay, and the last of each month
  // for two years; and the new one, whatever the clock says.
  [[nodiscard]] SysteemFout Maak();
  // The same, unless the last one holds these very bytes.
  [[nodiscard]] SysteemFout MaakZonodig();
  // The one that Maak made; empty before it has. The last one by its name is another when the clock was
  // set back.
  [[nodiscard]] const std::filesystem::path& Gemaakt() const { return gemaakt_; }
  // Asked before each copy is counted, from 1; False ends there.
  using Doorgaan = std::function<bool(std::size_t nummer, std::size_t aantal)>;
  // All of them, in all places, the last one first. Counting reads each person and relation of each.
  [[nodiscard]] std::vector<KopieRij> Lijst(const Doorgaan& doorgaan = {});
  // The last one; empty when there is none.
  [[nodiscard]] std::filesystem::path Laatste() const;
  // Makes the four files what they are in that copy, as one action, after a copy of what is there.
  // In TEKST, which the journal does not know, its files come back then; what else is there stays.
  // Central places that have only grown since stay too: other sets have numbers in them.
  [[nodiscard]] TerugUitslag ZetTerug(const std::string& naam);

 private:
  struct Bestand {
    BestandSoort soort;
    std::filesystem::path pad;  // of the set
    std::filesystem::path naam;
    bool centraal = false;
  };
  // The copies in a directory, the last one first.
  [[nodiscard]] static std::vector<std::filesystem::path> KopieenIn(
      const std::filesystem::path& map);
  // Those of all places, the last one first.
  [[nodiscard]] std::vector<std::filesystem::path> Kopieen() const;
  [[nodiscard]] SysteemFout MaakIn(const std::filesystem::path& doel);
  [[nodiscard]] std::filesystem::path NieuwPad() const;
  [[nodiscard]] bool IsGelijk(const std::filesystem::path& kopie) const;
  [[nodiscard]] std::optional<KopieTelling> Tel(const std::filesystem::path& kopie);
  void Ruim(const std::filesystem::path& nieuw) const;
  [[nodiscard]] SysteemFout LeesKopie(const std::filesystem::path& kopie,
                                      std::map<BestandSoort, std::string>& inhoud) const;

  Opslag opslag_;
  const Klok& klok_;
  SetPaden paden_;
  KopieMappen plekken_;
  std::vector<Bestand> bestanden_;
  std::filesystem::path gemaakt_;
};

}  // namespace lb77
