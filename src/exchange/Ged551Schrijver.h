// Writes a GEDCOM file for the programs of today: version 5.5.1 in UTF-8, by the standard, and by tags
// of our own where that has no word for what a record holds.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "exchange/ExpSchrijver.h"
#include "exchange/ExpUitvoer.h"
#include "exchange/Ged551Mee.h"
#include "exchange/Ged551Velden.h"
#include "exchange/GedKopGegevens.h"

namespace lb77 {

// The import makes the same records of the file again. What is lost is counted at the end of the log.
class Ged551Schrijver final : public ExpSchrijver {
 public:
  // References outlive it; the files of the set do not change meanwhile.
  Ged551Schrijver(ExpUitvoer& uit, ExpUitvoer& log, const Gegevens& gegevens,
                  const ExpSelectie& selectie, GedKopGegevens kop);

  // Reads all that is selected, then writes the head and the places.
  void Kop() override;
  void Persoon(std::int16_t nr) override;
  void Relatie(std::int16_t nr) override;
  void Slot() override;
  void LogSlot(const ExpTelling& telling) override;

 private:
  void Plaatsen();
  void LogVerlies();
  void LogEigenTags();

  ExpUitvoer& uit_;
  ExpUitvoer& log_;
  Gegevens gegevens_;
  const ExpSelectie& selectie_;
  GedKopGegevens kop_;
  Ged551Regels regels_;
  Ged551Opmerkingen opmerkingen_;
  Ged551Gemis gemis_;
  Ged551Velden velden_;
  std::unique_ptr<const Ged551Mee> mee_;
  int personen_ = 0;
  int relaties_ = 0;
};

}  // namespace lb77
