// Puts the trackers back behind a search beneath a field.
#pragma once

#include "store/Volgers.h"

namespace lb77 {

// A search takes HuidigPersoonNr along, and its result is a number of its own: the form beneath must
// stand on its record still. What lies in the buffers has changed, and is told as it is.
class VolgersBewaker {
 public:
  explicit VolgersBewaker(Volgers& volgers) : volgers_(volgers), begin_(volgers) {}
  ~VolgersBewaker() {
    volgers_.HuidigPersoonNr = begin_.HuidigPersoonNr;
    volgers_.HuidigRelatieNr = begin_.HuidigRelatieNr;
    volgers_.HuidigOpmNr = begin_.HuidigOpmNr;
  }
  VolgersBewaker(const VolgersBewaker&) = delete;
  VolgersBewaker& operator=(const VolgersBewaker&) = delete;

 private:
  Volgers& volgers_;
  const Volgers begin_;
};

}  // namespace lb77
