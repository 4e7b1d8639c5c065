// What lists read: the records of the open files, and no word of those that can't be read.
#pragma once

#include <cstdint>

#include "forms/StilGesprek.h"
#include "store/OpmLB77.h"
#include "store/Opslag.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"

namespace lb77 {

// One file.
template <class Record>
class Lezer {
 public:
  // `luid` has the user's ear.
  template <class... Delen>
  Lezer(const Opslag& luid, const Opslag& stil, Delen&... delen)
      : record(stil, delen...), luid_(luid, delen...) {}

  // Tells nothing.
  Record record;
  // The highest record. The user hears of a count that is wrong, and of a record 1 that can't be read.
  [[nodiscard]] std::int16_t Laatste() { return luid_.AantalRecords(); }

 private:
  Record luid_;
};

// Has record classes and trackers of its own, so that those of the session stay as they are.
class LijstBron {
 public:
  // What `opslag` refers to must outlive it, but for the trackers.
  explicit LijstBron(const Opslag& opslag) : opslag_(opslag) {}

 private:
  Opslag opslag_;
  StilGesprek niemand_;
  Volgers volgers_;
  Volgers vanTelling_;
  Opslag luid_{opslag_.bestanden, vanTelling_, opslag_.gesprek, opslag_.schrijfwijze};
  Opslag stil_{opslag_.bestanden, volgers_, niemand_, opslag_.schrijfwijze};

 public:
  Lezer<PersoonLB77> persoon{luid_, stil_};
  Lezer<RelatieLB77> relatie{luid_, stil_};
  Lezer<OpmLB77> opmerking{luid_, stil_, persoon.record, relatie.record};
};

}  // namespace lb77
