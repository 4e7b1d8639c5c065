// Who is linked to a person, and by which shortest chain.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "reporting/Verloop.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"

namespace lb77 {

// How the search came to a person: what he is of the person before him, or its beginning.
enum class VerwantSoort : std::uint8_t { Ouder = 0, Partner = 1, Kind = 2, Begin = 3 };

struct VerwantEntry {
  std::int16_t persoon = 0;
  std::int16_t vorige = 0;  // index of the entry from which this one was reached
  VerwantSoort soort = VerwantSoort::Begin;

  friend bool operator==(const VerwantEntry&, const VerwantEntry&) = default;
};

// The queue of the search, counted from 0. Each person stands in it at most once.
class VerwantRij {
 public:
  void Begin(std::int16_t persoon);
  // Adds a person behind the others, unless he is in it already. Numbers below 2 are nobody.
  void Voeg(std::int16_t persoon, std::size_t vorige, VerwantSoort soort);

  [[nodiscard]] std::size_t Aantal() const { return lijst_.size(); }
  // Precondition: `index` is below Aantal().
  [[nodiscard]] const VerwantEntry& operator[](std::size_t index) const { return lijst_[index]; }

  // From the entry of `doel` back to the first one, both included; empty when he was not reached.
  [[nodiscard]] std::vector<VerwantEntry> Keten(std::int16_t doel) const;

 private:
  [[nodiscard]] bool Bekend(std::int16_t persoon) const;
  void Zet(const VerwantEntry& entry);

  std::vector<VerwantEntry> lijst_;
  std::vector<std::int16_t> plek_;  // by person number: his index, or -1
};

// Fills the queue with everybody whom links reach from `begin`, breadth first: of each person the
// parents, then by relation the partner and the children. A person who can't be read ends the
// search. `verloop` is shown the person and his index, and may stop it. The buffers and trackers
// change.
[[nodiscard]] Uitslag ZoekVerwanten(VerwantRij& rij, std::int16_t begin, PersoonLB77& persoon,
                                    RelatieLB77& relatie, const Verloop& verloop);

}  // namespace lb77
