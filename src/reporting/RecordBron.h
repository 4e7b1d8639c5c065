// What reads whole files: their records, and no word of those that can't be read.
#pragma once

#include <cstdint>

#include "forms/StilGesprek.h"
#include "store/Gegevens.h"
#include "store/Opslag.h"

namespace lb77 {

// One file.
template <class Record>
struct Lezer {
  Record& record;  // tells nothing
  Record& luid;    // has the user's ear

  // The highest record. The user hears of a count that is wrong, and of a record 1 that can't be read.
  [[nodiscard]] std::int16_t Laatste() const { return luid.AantalRecords(); }
};

// Has record classes and trackers of its own, so that those of the session stay as they are.
class RecordBron {
 public:
  // What `opslag` refers to must outlive it, but for the trackers.
  explicit RecordBron(const Opslag& opslag)
      : stil_({opslag.bestanden, volgers_, niemand_, opslag.schrijfwijze}),
        luid_({opslag.bestanden, vanTelling_, opslag.gesprek, opslag.schrijfwijze}),
        schrijfwijze_(opslag.schrijfwijze) {}
  RecordBron(const RecordBron&) = delete;
  RecordBron& operator=(const RecordBron&) = delete;

  // Tells nothing.
  [[nodiscard]] Gegevens Stil() { return stil_.Alle(volgers_, schrijfwijze_); }
  // The same files with the user's ear, for counts that are wrong.
  [[nodiscard]] Gegevens Luid() { return luid_.Alle(vanTelling_, schrijfwijze_); }

  // One by one.
  [[nodiscard]] Lezer<PersoonLB77> Personen() { return {stil_.persoon, luid_.persoon}; }
  [[nodiscard]] Lezer<RelatieLB77> Relaties() { return {stil_.relatie, luid_.relatie}; }
  [[nodiscard]] Lezer<OpmLB77> Opmerkingen() { return {stil_.opmerking, luid_.opmerking}; }

 private:
  struct Klassen {
    explicit Klassen(const Opslag& opslag)
        : persoon(opslag), relatie(opslag), plaats(opslag), opmerking(opslag, persoon, relatie) {}
    [[nodiscard]] Gegevens Alle(Volgers& volgers, const Schrijfwijze& schrijfwijze) {
      return {persoon, relatie, plaats, opmerking, volgers, schrijfwijze};
    }

    PersoonLB77 persoon;
    RelatieLB77 relatie;
    PlaatsLB77 plaats;
    OpmLB77 opmerking;
  };

  StilGesprek niemand_;
  Volgers volgers_;
  Volgers vanTelling_;
  Klassen stil_;
  Klassen luid_;
  const Schrijfwijze& schrijfwijze_;
};

}  // namespace lb77
