// What a check reads: the records of the open files, and no word of those that can't be read.
#pragma once

#include "forms/StilGesprek.h"
#include "store/Gegevens.h"
#include "store/Opslag.h"

namespace lb77 {

// Has record classes and trackers of its own, so that those of the session stay as they are.
class ControleBron {
 public:
  // What `opslag` refers to must outlive it, but for the trackers.
  explicit ControleBron(const Opslag& opslag)
      : stil_({opslag.bestanden, volgers_, niemand_, opslag.schrijfwijze}),
        luid_({opslag.bestanden, vanTelling_, opslag.gesprek, opslag.schrijfwijze}),
        schrijfwijze_(opslag.schrijfwijze) {}
  ControleBron(const ControleBron&) = delete;
  ControleBron& operator=(const ControleBron&) = delete;

  // Tells nothing.
  [[nodiscard]] Gegevens Stil() { return stil_.Alle(volgers_, schrijfwijze_); }
  // The same files with the user's ear, for counts that are wrong.
  [[nodiscard]] Gegevens Luid() { return luid_.Alle(vanTelling_, schrijfwijze_); }

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
