// The remarks of persons in the prescribed GEDCOM file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

#include "exchange/ExpUitvoer.h"
#include "exchange/OpmReeks.h"
#include "store/OpmLB77.h"

namespace lb77 {

// Writes the remarks of one owner at a time.
class GedcomOpmerkingen {
 public:
  GedcomOpmerkingen(OpmLB77& opmerking, ExpUitvoer& uit, ExpUitvoer& log)
      : reeks_(opmerking), uit_(uit), log_(log) {}

  // Goes to the owner with these two fields. `id` names him in the log: "P12".
  void Neem(const std::string& id, std::int16_t opmRecord, std::int16_t opmCode);
  // Another name, and still the same remarks.
  void Noem(const std::string& id) { id_ = id; }
  [[nodiscard]] std::int16_t Code() const { return code_; }

  // The remarks of a rubric, its first line as NOTE on that level. A chain that breaks off is told
  // in the log, and ends them.
  void SchrijfOpmRegels(int niveau, std::int16_t rubriek);

  // Counts the remarks of a rubric whose line is not written.
  void SlaOver(std::int16_t rubriek);
  [[nodiscard]] std::size_t Overgeslagen() const { return overgeslagen_; }

  // The remarks of persons that were not written since they came behind a remark of the same rubric
  // that has less than ten lines.
  [[nodiscard]] std::size_t Weggelaten() const { return weggelaten_; }

 private:
  OpmReeks reeks_;
  ExpUitvoer& uit_;
  ExpUitvoer& log_;
  std::string id_;
  std::int16_t opmRecord_ = 0;
  std::int16_t code_ = 0;
  std::set<std::int16_t> geteld_;  // rubrics of this owner: one is written in two places
  std::size_t weggelaten_ = 0;
  std::size_t overgeslagen_ = 0;
};

}  // namespace lb77
