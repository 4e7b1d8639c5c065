// What an undo is to put back, worked out before anything is written.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "store/BestandSoort.h"
#include "store/JournaalVorm.h"
#include "store/SysteemFout.h"

namespace lb77 {

// What came of an undo.
struct OngedaanUitslag {
  enum class Soort {
    Gelukt,
    NietAanwezig,  // there is no such action
    Bezig,         // an action is running
    Beschadigd,    // the journal of action `nummer` is not whole
    Gewijzigd,     // `plek` is not as the last action left it
    Plaatsen,      // the place file is another than the one that was written
    Mislukt,       // `fout`; all is as before, unless the journal tells of an unfinished action
  };
  Soort soort = Soort::Gelukt;
  std::uint32_t nummer = 0;
  RecordPlek plek;
  SysteemFout fout;

  // True when it was done.
  explicit operator bool() const { return soort == Soort::Gelukt; }
};

// Why an undo was refused, in a sentence for the user; empty when it was not.
[[nodiscard]] std::string OngedaanTekst(const OngedaanUitslag& uitslag);

// "Persoonsrecord", "Relatierecord" ... with its number.
[[nodiscard]] std::string RecordNaam(const RecordPlek& plek);

// Takes the actions from the last one backwards. Each must have left what the one behind it found
// there, and the last one what stands there now.
class OngedaanPlan {
 public:
  // The bytes that stand in a record now, and the length of a file.
  using LeesRecord = std::function<SysteemFout(const RecordPlek&, std::string&)>;
  using LeesLengte = std::function<SysteemFout(BestandSoort, std::uint64_t&)>;

  OngedaanPlan(LeesRecord leesRecord, LeesLengte leesLengte)
      : leesRecord_(std::move(leesRecord)), leesLengte_(std::move(leesLengte)) {}

  // Adds the action before those that were added. Nothing when it can be undone.
  [[nodiscard]] std::optional<OngedaanUitslag> Voeg(const JournaalInhoud& inhoud);

  // What is to stand in each record; nothing where none was.
  [[nodiscard]] const std::map<RecordPlek, std::string>& Records() const { return records_; }
  // The lengths that the files are to have; kGeenLengte for one that stays as it is.
  [[nodiscard]] const Lengten& DeLengten() const { return lengten_; }

 private:
  [[nodiscard]] std::optional<OngedaanUitslag> ControleerLengte(BestandSoort soort,
                                                                std::uint64_t na);
  [[nodiscard]] std::optional<OngedaanUitslag> ControleerRecord(const JournaalStand& stand);

  LeesRecord leesRecord_;
  LeesLengte leesLengte_;
  std::map<RecordPlek, std::string> records_;
  Lengten lengten_{kGeenLengte, kGeenLengte, kGeenLengte, kGeenLengte};
};

}  // namespace lb77
