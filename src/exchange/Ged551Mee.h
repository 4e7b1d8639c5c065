// Which records go into a file, found before the first of them is written.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>

#include "exchange/SelectieLijst.h"
#include "store/Gegevens.h"
#include "text/Getallen.h"

namespace lb77 {

// A set of record numbers.
class Ged551Nummers {
 public:
  void Voeg(std::int16_t nr) {
    if (nr > 0) leden_.set(static_cast<std::size_t>(nr));
  }
  [[nodiscard]] bool Bevat(std::int16_t nr) const {
    return nr > 0 && leden_.test(static_cast<std::size_t>(nr));
  }
  [[nodiscard]] int Aantal() const { return static_cast<int>(leden_.count()); }

 private:
  std::bitset<static_cast<std::size_t>(kMaxRecords) + 1> leden_;
};

// Links lead only to these.
struct Ged551Mee {
  Ged551Nummers personen;  // those selected that can be read and continue no other record
  Ged551Nummers relaties;  // the same
  Ged551Nummers plaatsen;  // all that these name; every place when all records go along
};

// Reads what is selected.
[[nodiscard]] Ged551Mee Verken(const Gegevens& gegevens, const ExpSelectie& selectie);

}  // namespace lb77
