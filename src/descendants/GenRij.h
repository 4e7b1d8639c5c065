// The layout of a descendant chart: the position of each entry along the axis on which brothers and
// sisters lie side by side.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "descendants/GenTabel.h"
#include "reporting/Verloop.h"

namespace lb77 {

// A column beside the table. Positions count from 0. The leaves, entries without followed children,
// have one each, in the order of the branches; whoever else stands at a position is an ancestor of its
// leaf.
class GenRij {
 public:
  // The positions of the first and the last followed child.
  struct Bereik {
    int van = 0;
    int tot = 0;
  };

  // The position of an entry.
  [[nodiscard]] int Rij(int i) const { return rij_[Plaats(i)]; }
  // The number of positions.
  [[nodiscard]] int Aantal() const { return static_cast<int>(blad_.size()); }
  // The leaf at a position.
  [[nodiscard]] int Blad(int rij) const { return blad_[Plaats(rij)]; }
  // Where the children of an entry stand. Precondition: it has one.
  [[nodiscard]] Bereik Kinderen(int i) const { return kinderen_[Plaats(i)]; }

  // For the layout pass: nobody placed of so many entries; a leaf gets the next position; a parent
  // gets his between his children, who have theirs.
  void Begin(int aantal);
  void PlaatsBlad(int i);
  void PlaatsOuder(int i, Bereik kinderen, bool centreren);

 private:
  [[nodiscard]] static std::size_t Plaats(int i) { return static_cast<std::size_t>(i); }

  std::vector<std::int16_t> rij_;
  std::vector<std::int16_t> blad_;
  std::vector<Bereik> kinderen_;
};

// Places all entries: a parent halfway between his first and his last child with `centreren`, else
// level with the first. The stop is tested at each entry of the walk along the branches.
[[nodiscard]] Uitslag PlaatsGen(GenRij& rijen, const GenTabel& tabel, bool centreren,
                                const Verloop& verloop);

}  // namespace lb77
