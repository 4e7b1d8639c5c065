// The remarks of one owner, whole and each with its rubric.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/OpmLB77.h"

namespace lb77 {

struct Ged551Opmerking {
  std::int16_t rubriek = 0;
  std::int16_t prog = 0;            // the outputs in which it is used
  std::vector<std::string> regels;  // 1 to 10, none of them empty
  bool geschreven = false;
};

// Goes along chains. Each record of the file is told once, so that a run over all owners ends in
// time however the links lie. The file of remarks does not change meanwhile.
class Ged551Opmerkingen {
 public:
  explicit Ged551Opmerkingen(OpmLB77& opmerking);

  // The remarks of the chain from `begin` (0 for none), in its order. Those with a rubric of another
  // kind of owner are left out.
  [[nodiscard]] std::vector<Ged551Opmerking> Lees(std::int16_t begin, bool vanPersoon);

  // Links to what is no remark or was told before, and remarks left out.
  [[nodiscard]] int Verloren() const { return verloren_; }

 private:
  [[nodiscard]] bool Betreed(std::int16_t nr);
  // The lines of the remark in the buffer; the record class stands elsewhere afterwards.
  [[nodiscard]] std::vector<std::string> LeesRegels();

  OpmLB77& opmerking_;
  std::vector<bool> verteld_;
  int verloren_ = 0;
};

}  // namespace lb77
