// The viewer of any text file that the user chooses.
#pragma once

#include "output/TekstVenster.h"

namespace lb77 {

// Asks for a file while it loads; without one it closes before it shows.
class BekijkTekst final : public TekstVenster {
 public:
  explicit BekijkTekst(Hoofdmodule& hoofd);

 private:
  void BijLaden() override;
};

}  // namespace lb77
