// The records that the user selected for an export.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "text/Getallen.h"

namespace lb77 {

// Record numbers in the order in which they were added, none of them twice.
class SelectieLijst {
 public:
  static constexpr std::size_t kHoogsteAantal = 32000;

  // Adds a number, from 1, behind the others; one that is there already stays where it is. False for
  // a new number when the list is full.
  [[nodiscard]] bool Voeg(std::int16_t nr);
  [[nodiscard]] bool Bevat(std::int16_t nr) const;
  [[nodiscard]] std::span<const std::int16_t> Nummers() const { return nummers_; }
  [[nodiscard]] std::size_t Aantal() const { return nummers_.size(); }
  void Wis();

 private:
  std::vector<std::int16_t> nummers_;
  std::bitset<static_cast<std::size_t>(kMaxRecords) + 1> leden_;
};

// Links lead only to records that are selected.
struct ExpSelectie {
  SelectieLijst SelPersonen;
  SelectieLijst SelRelaties;

  [[nodiscard]] bool IsLeeg() const { return SelPersonen.Aantal() + SelRelaties.Aantal() == 0; }
};

}  // namespace lb77
