// The findings of a check as a list: by kind, and which of them have been mended since.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "checks/Bevinding.h"

namespace lb77 {

class Controleur;

class BevindingLijst {
 public:
  struct Regel {
    Bevinding bevinding;
    bool hersteld = false;
  };
  struct SoortTelling {
    BevindingSoort soort;
    std::size_t aantal;
  };

  // `aantal`: how many there are, of which `gevonden` may be the first.
  BevindingLijst(std::vector<Bevinding> gevonden, std::size_t aantal);

  // By kind, those of one kind by record.
  [[nodiscard]] const std::vector<Regel>& Regels() const { return regels_; }
  // How many findings stand in the report only.
  [[nodiscard]] std::size_t NietInLijst() const { return nietInLijst_; }
  // The kinds that occur, in order.
  [[nodiscard]] std::vector<SoortTelling> Soorten() const;

  // Tests the records of the list again, as the files are now: what is not found any more is mended,
  // what is new on them joins the list.
  void Hertoets(Controleur& regels);

 private:
  void Orden();

  std::vector<Regel> regels_;
  std::size_t nietInLijst_ = 0;
};

}  // namespace lb77
