// The findings of a check as a list: by kind, and which of them have been mended since.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "checks/Bevinding.h"

namespace lb77 {

class Controleur;

// What a check found beyond what a list holds.
struct BuitenLijst {
  std::size_t opLaatste = 0;  // on the record of the last finding in the list
  std::size_t erna = 0;       // on records that the list does not name
};

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

  // A list holds no more; what more there is stands in the report only.
  static constexpr std::size_t kMeeste = 100000;

  // `gevonden`: the first that the check found, in its order.
  explicit BevindingLijst(std::vector<Bevinding> gevonden, BuitenLijst buiten = {});

  // By kind, those of one kind by record.
  [[nodiscard]] const std::vector<Regel>& Regels() const { return regels_; }
  // How many findings stand in the report only.
  [[nodiscard]] std::size_t NietInLijst() const { return buiten_.opLaatste + buiten_.erna; }
  // The kinds that occur, in order.
  [[nodiscard]] std::vector<SoortTelling> Soorten() const;

  // Tests the records of the list again, as the files are now: what is not found any more is mended,
  // what is new on them joins the list as long as there is room.
  void Hertoets(Controleur& regels);

 private:
  void Orden();

  std::vector<Regel> regels_;
  BuitenLijst buiten_;
};

}  // namespace lb77
