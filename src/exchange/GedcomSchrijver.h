// Writes the prescribed GEDCOM file: version 5.5, with the rules of its own that other programs have
// come to know it by.
#pragma once

#include <cstdint>

#include "exchange/ExpSchrijver.h"
#include "exchange/ExpUitvoer.h"
#include "exchange/GedKopGegevens.h"
#include "exchange/GedcomOpmerkingen.h"
#include "exchange/PlaatsNamen.h"
#include "forms/Gesprek.h"
#include "store/Gegevens.h"

namespace lb77 {

// What a writer of GEDCOM works with; all of it outlives the writer.
struct GedBronnen {
  Gegevens gegevens;
  const ExpSelectie& selectie;
  Gesprek& gesprek;
  ExpUitvoer& uit;
  ExpUitvoer& log;
};

class GedcomSchrijver final : public ExpSchrijver {
 public:
  GedcomSchrijver(const GedBronnen& bronnen, GedKopGegevens kop);

  void Kop() override;
  void Persoon(std::int16_t nr) override;
  void Relatie(std::int16_t nr) override;
  void Slot() override;
  void LogSlot(const ExpTelling& telling) override;

 private:
  GedBronnen bronnen_;
  GedKopGegevens kop_;
  PlaatsNamen plaatsen_;
  GedcomOpmerkingen opmerkingen_;
  OpmReeks vanRelaties_;  // which are counted, and not written
  std::size_t bijRelaties_ = 0;
};

}  // namespace lb77
