// The rule of the check of remarks: each line is found from its owner.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "checks/Bereik.h"
#include "checks/Controleur.h"
#include "checks/OpmSchakels.h"
#include "reporting/RecordBron.h"
#include "store/Gegevens.h"

namespace lb77 {

// A line is right when it is one of the up to ten lines of a remark of its rubric on the chain of its
// owner. All chains are read once, in the order of the file, however they are damaged.
class ControleOpmRegels final : public Controleur {
 public:
  explicit ControleOpmRegels(RecordBron& bron) : gegevens_(bron.Stil()), luid_(bron.Luid()) {}

  [[nodiscard]] std::int16_t Laatste() override {
    return bereik_.Tot(luid_.opmerking, gegevens_.opmerking);
  }
  void Begin(std::int16_t laatste) override;
  void Toets(std::int16_t nr, const Melding& meld) override;

 private:
  struct Regel {
    std::int16_t rubriek = 0;  // 0 too for one that can't be read
    std::int16_t eigenaar = 0;
    std::int16_t volgRegel = 0;
  };
  struct Eigenaar {
    bool gelezen = false;
    std::int16_t opmRecord = 0;  // 0 too for one that is no owner
    std::int16_t opmCode = 0;
  };

  [[nodiscard]] OpmSchakels LeesRegels(std::int16_t laatste);
  void VolgOpmerking(std::int16_t eerste, const OpmSchakels& schakels);
  [[nodiscard]] bool IsBijEigenaar(const Regel& regel, std::int16_t eerste,
                                   const OpmSchakels& schakels);
  [[nodiscard]] const Eigenaar& EigenaarVan(const Regel& regel);

  Gegevens gegevens_;
  Gegevens luid_;
  Bereik bereik_;
  std::vector<Regel> regels_;                       // by record number
  std::array<std::vector<Eigenaar>, 2> eigenaren_;  // persons, relations
  std::vector<bool> goed_;                          // by record number
};

}  // namespace lb77
