// The ancestor chart as a tree of fixed shape: a place for every possible ancestor, known or not.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ancestors/KwNummer.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"

namespace lb77 {

inline constexpr int kMinSchemaGen = 2;
inline constexpr int kMaxSchemaGen = 10;

// Positions count from 1, the proband; the father of k is 2k, his mother 2k + 1. A line of the chart
// holds one position, and everybody stands halfway between his parents.
class KwstSchema {
 public:
  // `generaties` lies in kMinSchemaGen to kMaxSchemaGen.
  explicit KwstSchema(int generaties);

  // Fills in the proband and whoever of his ancestors can be read. One who occurs again has his
  // ancestors again.
  void Bouw(std::int16_t proband, PersoonLB77& persoon, RelatieLB77& relatie);

  [[nodiscard]] int Generaties() const { return generaties_; }
  // The number of positions, and of lines.
  [[nodiscard]] int Aantal() const { return static_cast<int>(rij_.size()) - 1; }
  // The record number at a position; 0 when nobody is known there.
  [[nodiscard]] std::int16_t SchemaPersoon(int k) const { return persoon_[Plaats(k)]; }
  // The position on line `r`, from 1.
  [[nodiscard]] int SchemaRij(int r) const { return rij_[Plaats(r)]; }
  // The generation of a position, from 1.
  [[nodiscard]] static int Generatie(int k);
  // What joins a position to that of its child, in columns of `breedte`; empty for the proband.
  [[nodiscard]] std::string Lijnen(int k, int breedte) const;

 private:
  [[nodiscard]] static std::size_t Plaats(int k) { return static_cast<std::size_t>(k); }

  int generaties_;
  std::vector<std::int16_t> persoon_;
  std::vector<int> rij_;
};

// The kwartier number of position `k`, when the proband's is `begin`.
[[nodiscard]] Kwartiernummer SchemaNummer(const Kwartiernummer& begin, int k);

}  // namespace lb77
