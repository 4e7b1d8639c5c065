// The four open record files of the active file set.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "store/BestandSoort.h"
#include "store/Journaal.h"
#include "store/RecordBestand.h"
#include "store/SetPaden.h"
#include "store/SysteemFout.h"

namespace lb77 {

// The name in messages: "Persoonsbestand", "Relatiebestand" ...
std::string_view BestandNaam(BestandSoort soort);

// The path of that file in a set; for the places that of its own.
const std::filesystem::path& PadVanSoort(const SetPaden& paden, BestandSoort soort);

// Which file did not open, and why.
struct OpenFout {
  BestandSoort soort = BestandSoort::Personen;
  std::filesystem::path pad;
  SysteemFout fout;
};

// The message (stop symbol) of a file that did not open.
std::string OpenFoutTekst(const OpenFout& fout);

// What a journal needs from outside.
struct JournaalBron {
  Journaal::Tijd tijd;
  Journaal::VreemdMelding bijVreemd;  // may be empty
  // The files of the journal in a directory; those on the disk when it is empty.
  std::function<std::unique_ptr<JournaalMap>(const std::filesystem::path& map)> map;
};

// Owns the open files. A file that is not open is there all the same, and fails every operation.
class Bestandenset {
 public:
  // What an opener gives: a file, or none and the reason.
  struct Opening {
    std::unique_ptr<RecordBestand> bestand;
    SysteemFout fout;
  };
  using Opener = std::function<Opening(const std::filesystem::path& pad, std::size_t lengte)>;

  // Opens files on the disk.
  Bestandenset();
  // Opens files by `opener`, for tests that wrap them.
  explicit Bestandenset(Opener opener);

  // Files that are opened from here on are written through a journal, beside them where JournaalPlek
  // says. Without this call there is none.
  void ZetJournaal(JournaalBron bron) { bron_ = std::move(bron); }
  // The journal of the set that was opened last; nothing when there is none. It goes with the set.
  [[nodiscard]] const std::shared_ptr<Journaal>& HetJournaal() const { return journaal_; }

  // Takes the set for this run of the program, until its person file is closed. False when another
  // run has it. It keeps nobody from anything: that is for who asks.
  [[nodiscard]] bool NeemInGebruik();

  // Opens one file, found under another case too; an absent one is created empty. What was open
  // as this file is closed first, also when the opening fails.
  [[nodiscard]] SysteemFout Open(BestandSoort soort, const std::filesystem::path& pad);

  // Opens one file of a set. When there are no places of its own the central place file stands in, if
  // it holds any, or if they can't be made; own ones that are there and do not open are a failure.
  // Nothing on success.
  [[nodiscard]] std::optional<OpenFout> Open(BestandSoort soort, const SetPaden& paden);

  // Closes all files and opens those of a set in order. The first failure ends it; the files
  // before it stay open.
  [[nodiscard]] std::optional<OpenFout> OpenSet(const SetPaden& paden);

  // Closes a file; does nothing when it is not open.
  void Sluit(BestandSoort soort);
  void SluitAlles();

  bool IsOpen(BestandSoort soort) const;

  // Always valid until the file is closed or opened again; a closed file fails every operation
  // with "Bestand is niet open".
  RecordBestand& Bestand(BestandSoort soort);

  // The state of a file: moves at each write and each opening, and never comes back. An index in
  // memory compares it to know whether it is stale.
  std::uint64_t Stand(BestandSoort soort) const;

  // For all open files; see VooruitLezen.
  void LeesVooruit(bool aan);

  // Brings all four files to the disk itself; the first error, after having tried all.
  [[nodiscard]] SysteemFout Veiligstellen();

 private:
  struct Vak {
    std::unique_ptr<RecordBestand> bestand;
    std::uint64_t eerder = 0;  // the state when this file was opened
  };
  Vak& VakVan(BestandSoort soort) { return vakken_.at(IndexVan(soort)); }
  const Vak& VakVan(BestandSoort soort) const { return vakken_.at(IndexVan(soort)); }
  // Puts the journal of its directory before a file that has opened.
  std::unique_ptr<RecordBestand> MetJournaal(std::unique_ptr<RecordBestand> bestand,
                                             BestandSoort soort, const std::filesystem::path& pad);

  Opener opener_;
  JournaalBron bron_;
  std::filesystem::path journaalMap_;
  std::shared_ptr<Journaal> journaal_;
  std::array<Vak, 4> vakken_;
  std::array<std::unique_ptr<RecordBestand>, 4> gesloten_;
};

}  // namespace lb77
