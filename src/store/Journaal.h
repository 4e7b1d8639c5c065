// The journal of a file set: what each action replaced, so that it can be put back.
//
// Before a record is written for the first time within an action, what stood there is brought to
// the disk itself; what an action adds behind the end of a file needs only the file's length. The
// four files are on the disk before the action counts as done.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/BestandSoort.h"
#include "store/JournaalMap.h"
#include "store/JournaalVorm.h"
#include "store/OngedaanPlan.h"
#include "store/RecordBestand.h"
#include "store/SysteemFout.h"

namespace lb77 {

// The label of a write that no action was begun for.
inline constexpr std::string_view kLosseHandeling = "Wijziging";

// The oldest actions go when there are more than this, in number or in bytes together.
inline constexpr std::size_t kMeesteHandelingen = 500;
inline constexpr std::uint64_t kMeesteJournaal = std::uint64_t{256} << 20U;

// An action that was begun and not ended.
struct OnvoltooideHandeling {
  std::string label;
  std::string tijd;  // "jjjj-mm-dd uu:mm:ss"
};

// A row of the history.
struct HandelingRegel {
  std::uint32_t nummer = 0;
  std::string tijd;
  std::string label;
  std::size_t records = 0;          // that it wrote
  std::uint32_t ongedaanVanaf = 0;  // it undoes the actions from this one on; 0 when it is no undo
  bool ongedaan = false;            // undone by a later one
  bool gaaf = true;                 // False when its file is damaged: it can't be undone
};

// What an action did to a record.
struct RecordWijziging {
  RecordPlek plek;
  std::string voor;               // the bytes before; none when the record was not there
  std::optional<std::string> na;  // the bytes after; nothing when they can't be told any more
};

// Works below the record files, on what Koppel gave it. Not for two programs at once: whoever
// opens a set that is in use has been warned.
class Journaal {
 public:
  // The present moment as "jjjj-mm-dd uu:mm:ss".
  using Tijd = std::function<std::string()>;
  // Hears of a file that somebody else has changed since the last action.
  using VreemdMelding = std::function<void(BestandSoort)>;

  // Touches nothing on the disk.
  Journaal(std::unique_ptr<JournaalMap> map, Tijd tijd, VreemdMelding bijVreemd = {});
  // Ends what is running.
  ~Journaal();
  Journaal(const Journaal&) = delete;
  Journaal& operator=(const Journaal&) = delete;

  // The file has opened; `centraal` for the central place file. It must live until Ontkoppel.
  void Koppel(BestandSoort soort, RecordBestand& bestand, bool centraal = false);
  // The file is about to be closed. What an action that is running wrote to it is on the disk then.
  void Ontkoppel(BestandSoort soort);

  // Begins an action, or joins the one that is running; gives the ticket for Einde. Nothing is
  // written before the first record is. `label` in Windows-1252.
  [[nodiscard]] std::uint64_t Begin(std::string_view label);
  // Ends it, when it is the outer one. After a failure the next write tries again.
  [[nodiscard]] SysteemFout Einde(std::uint64_t kaart);
  // Ends the action that is running, however deep.
  [[nodiscard]] SysteemFout SluitAf();

  // To be called before each write of a record: a failure forbids it.
  [[nodiscard]] SysteemFout Voor(const RecordPlek& plek);
  // To be called after each write, also one that failed.
  [[nodiscard]] SysteemFout Na(const RecordPlek& plek, std::span<const char> bytes, bool gelukt);

  // The action that a crash has left, once the files are open; nothing when it changed nothing.
  [[nodiscard]] std::optional<OnvoltooideHandeling> Onvoltooid();
  // Puts back every byte and every length of it; only central places that it has lengthened, which
  // other sets may use by now, stay. Can be done again when it did not come to its end.
  [[nodiscard]] SysteemFout Herstel();
  // Keeps what stands there and ends it.
  [[nodiscard]] SysteemFout Behoud();

  // All actions that have ended, oldest first.
  [[nodiscard]] std::vector<HandelingRegel> Geschiedenis();
  // What an action did, in order of file and record. Empty for an unknown one.
  [[nodiscard]] std::vector<RecordWijziging> Wijzigingen(std::uint32_t nummer);
  // The action that is undone next, going back: undos and what they undid are stepped over.
  [[nodiscard]] std::optional<HandelingRegel> LaatsteTeOngedaan();
  // Undoes the actions from the last one back to and including `nummer`, as one new action. All or
  // nothing: when a record or a file is not as the last action left it, nothing is written.
  [[nodiscard]] OngedaanUitslag MaakOngedaan(std::uint32_t nummer);

 private:
  // What the running action knows of a record.
  struct Merk {
    bool beeld = false;
    bool geschreven = false;
    std::uint8_t aantal = 0;
    std::uint32_t som = 0;
  };
  // The action that is running, from its first write on.
  struct Lopend {
    JournaalKop kop;
    std::string wachtend;      // not yet in the journal
    std::uint64_t lengte = 0;  // the bytes that are
    bool gemaakt = false;      // its file is there
    bool opSchijf = false;     // its head and its name are on the disk
    bool geschreven = false;   // a record has been written
    bool af = false;           // its end was tried and failed
    std::size_t losse = 0;     // times that the journal had to be brought to the disk
    SysteemFout verloren;      // a file was closed that could not be brought to the disk
    Lengten lengten{kGeenLengte, kGeenLengte, kGeenLengte, kGeenLengte};
    Lengten eindLengten = lengten;
    std::array<std::vector<Merk>, 4> merken;
    std::vector<JournaalPost> posten;  // those of the actions before it, oldest first
  };
  // How a file was when it was last looked at.
  struct Stempel {
    std::uint64_t lengte = 0;
    std::int64_t tijd = 0;
    [[nodiscard]] bool operator==(const Stempel&) const = default;
  };
  // An action on the disk.
  struct Gelezen {
    std::uint32_t nummer = 0;
    std::string naam;
    JournaalInhoud inhoud;
  };

  RecordBestand* Ruw(BestandSoort soort) const { return ruw_.at(IndexVan(soort)); }
  Merk& MerkVan(const RecordPlek& plek);
  // The bytes that stand in a record now.
  [[nodiscard]] SysteemFout LeesNu(const RecordPlek& plek, std::string& bytes);
  // Of a file that says it is empty, whether it is.
  [[nodiscard]] SysteemFout LengteNu(BestandSoort soort, std::uint64_t& lengte);

  [[nodiscard]] SysteemFout VoorbereidSchrijven(const RecordPlek& plek);
  [[nodiscard]] SysteemFout MaakLopend();
  [[nodiscard]] SysteemFout RuimOnvoltooid(std::vector<JournaalPost>& posten);
  void MeldVreemd();
  [[nodiscard]] SysteemFout NoteerLengte(BestandSoort soort);
  [[nodiscard]] SysteemFout NoteerBeeld(const RecordPlek& plek);
  [[nodiscard]] SysteemFout NoteerStaart(BestandSoort soort);
  void LeesVooruit(const RecordPlek& plek);
  [[nodiscard]] SysteemFout Spoel();
  [[nodiscard]] SysteemFout SluitLopendAf();
  [[nodiscard]] SysteemFout RondAf(BestandSoort soort);
  [[nodiscard]] SysteemFout LaatVallen();
  [[nodiscard]] std::string MaakEinde() const;
  void RuimOud(std::uint64_t grootte);
  void Stempelen();

  // The files with an unfinished action, the last one first.
  [[nodiscard]] SysteemFout LeesOnvoltooid(std::vector<Gelezen>& gelezen);
  [[nodiscard]] bool Verschilt(const JournaalInhoud& inhoud);
  [[nodiscard]] SysteemFout LegEindeVast(const Gelezen& gelezen);
  [[nodiscard]] SysteemFout LegBestandenVast(const JournaalInhoud& inhoud);
  [[nodiscard]] SysteemFout IsGegroeid(const JournaalInhoud& inhoud, bool& gegroeid);
  [[nodiscard]] SysteemFout ZetTerug(const JournaalInhoud& inhoud);
  [[nodiscard]] SysteemFout BehoudDeze(const Gelezen& gelezen);
  [[nodiscard]] SysteemFout StandNu(const JournaalInhoud& inhoud, JournaalEinde& einde);

  // A file, when it is of an action from `vanaf` on that has ended.
  [[nodiscard]] SysteemFout LeesVoltooid(const JournaalPost& post, std::uint32_t vanaf,
                                         std::optional<Gelezen>& gelezen);
  // Those from `vanaf` on, oldest first.
  [[nodiscard]] SysteemFout LeesVanaf(std::uint32_t vanaf, std::vector<Gelezen>& gelezen);
  [[nodiscard]] std::optional<OngedaanUitslag> MaakPlan(const std::vector<Gelezen>& gelezen,
                                                        OngedaanPlan& plan) const;
  [[nodiscard]] SysteemFout Voer(const OngedaanPlan& plan, std::uint32_t vanaf);
  void DraaiTerug();
  [[nodiscard]] SysteemFout NoteerPlan(const OngedaanPlan& plan);
  [[nodiscard]] SysteemFout SchrijfPlan(const OngedaanPlan& plan);

  std::unique_ptr<JournaalMap> map_;
  Tijd tijd_;
  VreemdMelding bijVreemd_;
  std::array<RecordBestand*, 4> ruw_{};
  std::array<Stempel, 4> stempels_{};
  bool centraal_ = false;
  int diepte_ = 0;
  std::uint64_t kaart_ = 0;
  std::string label_;
  std::optional<Lopend> lopend_;
};

}  // namespace lb77
