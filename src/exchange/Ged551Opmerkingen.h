// The remarks of one owner, whole and each with its rubric.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/Gegevens.h"
#include "store/OpmLB77.h"

namespace lb77 {

struct Ged551Opmerking {
  std::int16_t rubriek = 0;
  std::int16_t prog = 0;            // the outputs in which it is used
  std::vector<std::string> regels;  // 1 to 10, none of them empty
  bool geschreven = false;
};

// Who has a remark, by his record.
struct Ged551Eigenaar {
  bool persoon = true;
  std::int16_t nr = 0;
  bool operator==(const Ged551Eigenaar&) const = default;
};

// Goes along chains. Each record of the file is told once, so that a run over all owners ends in
// time however the links lie. The files do not change meanwhile.
class Ged551Opmerkingen {
 public:
  explicit Ged551Opmerkingen(const Gegevens& gegevens);

  // The remarks of the chain from `begin` (0 for none), in its order. Those with a rubric of another
  // kind of owner are left out. The chain ends at a remark of another owner, who has it in his own.
  // The buffers of all records are lost.
  [[nodiscard]] std::vector<Ged551Opmerking> Lees(Ged551Eigenaar wie, std::int16_t begin);

  // Links to what is no remark or was told before, and remarks left out.
  [[nodiscard]] int Verloren() const { return verloren_; }

 private:
  [[nodiscard]] bool Betreed(std::int16_t nr);
  // The lines of the remark in the buffer; the record class stands elsewhere afterwards.
  [[nodiscard]] std::vector<std::string> LeesRegels();

  // Is the remark in the buffer, of record `nr`, in the chain of another owner, whom it names? The
  // record is read again.
  [[nodiscard]] bool IsVanAnder(std::int16_t nr, Ged551Eigenaar wie);
  void VolgEigen(Ged551Eigenaar wie);

  Gegevens gegevens_;
  OpmLB77& opmerking_;
  std::vector<bool> verteld_;
  std::vector<bool> eigen_;  // that the owners of whom was doubt have in their own chain
  int verloren_ = 0;
};

}  // namespace lb77
