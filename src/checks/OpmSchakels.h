// Chains of remarks as a whole: which first record of a remark is reached from which.
#pragma once

#include <cstdint>
#include <vector>

namespace lb77 {

// Each record has at most one that follows it, so that all chains together are trees whose branches
// run towards the root, and here and there, in a damaged file, a circle with trees on it. One walk
// numbers them all; each question costs the same then, however long the chains are.
class OpmSchakels {
 public:
  // `volgende`: for each record number what follows it; 0, or a number outside the list, is the end.
  explicit OpmSchakels(std::vector<std::int16_t> volgende);

  // Does the chain that begins at `begin` come by `nr`? `begin` itself counts.
  [[nodiscard]] bool Bereikt(std::int16_t begin, std::int16_t nr) const;

 private:
  // The numbers of a record and of the last that leads to it, in the order of the walk.
  struct Tak {
    int eerste = 0;
    int laatste = 0;
  };

  void BreekKringen();
  void Nummer();
  [[nodiscard]] bool Ligt(std::int16_t nr, std::int16_t boven) const;

  std::vector<std::int16_t> volgende_;  // 0 for none, and where a circle is cut
  std::vector<std::int16_t> geknipt_;   // of the record where a circle is cut, what follows it
  std::vector<std::int16_t> wortel_;    // the last record that is reached without passing a cut
  std::vector<Tak> takken_;
};

}  // namespace lb77
