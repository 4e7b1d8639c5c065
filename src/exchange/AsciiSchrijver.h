// The fixed-width export: a line for each person and relation, one for each line of a remark.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "exchange/ExpSchrijver.h"
#include "exchange/ExpUitvoer.h"
#include "exchange/GedcomPersoon.h"
#include "exchange/GedcomRelatie.h"
#include "exchange/OpmReeks.h"
#include "exchange/PlaatsNamen.h"
#include "exchange/SelectieLijst.h"
#include "forms/Gesprek.h"
#include "store/Gegevens.h"

namespace lb77 {

// All outlive the run.
struct AsciiBronnen {
  Gegevens gegevens;
  const ExpSelectie& selectie;
  Gesprek& gesprek;
  ExpUitvoer& personen;
  ExpUitvoer& relaties;
  ExpUitvoer& opmerkingen;
  ExpUitvoer& log;
};

// Texts stay in Windows-1252. A record that can't be read, which the log tells, and the continuation
// of another have no line.
class AsciiSchrijver final : public ExpSchrijver {
 public:
  explicit AsciiSchrijver(const AsciiBronnen& bronnen);

  void Persoon(std::int16_t nr) override;
  void Relatie(std::int16_t nr) override;
  void LogSlot(const ExpTelling& telling) override;

 private:
  // Whose remarks: "P" or "R" with his number, and where they begin.
  struct Eigenaar {
    std::string id;
    std::int16_t opmRecord;
    std::int16_t opmCode;
  };
  void Opmerkingen(const Eigenaar& eigenaar, std::span<const std::int16_t> rubrieken,
                   std::span<const std::int16_t> zonder);

  AsciiBronnen bronnen_;
  PlaatsNamen plaatsen_;
  OpmReeks opmReeks_;
  std::size_t tweede_ = 0;  // remarks left out behind another of their rubric
  std::size_t zonder_ = 0;  // and those of rubrics that have no field
};

}  // namespace lb77
