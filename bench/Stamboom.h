// A made-up population: persons in order of birth, and families whose members fit together.
#pragma once

#include <cstdint>
#include <vector>

#include "Toeval.h"

namespace lb77::bench {

inline constexpr int kGeen = -1;

// A person; numbers of persons and families count from 0.
struct Mens {
  bool man = true;
  int jaar = 0;       // of birth
  int sterfjaar = 0;  // 0: still alive, or not known
  int familie = 0;    // number of the surname, which goes from father to child
  int ouders = kGeen;
  std::vector<int> gezinnen;
};

struct Gezin {
  int man = kGeen;
  int vrouw = kGeen;
  int jaar = 0;  // of the marriage
  std::vector<int> kinderen;
};

struct Stamboom {
  std::vector<Mens> mensen;
  std::vector<Gezin> gezinnen;
};

// Persons of four and a half centuries. Nobody marries before 20 or has children before the
// wedding; some marry up to four times, and some couples have more than fifteen children.
[[nodiscard]] Stamboom MaakBevolking(int personen, int gezinnen, Toeval& toeval);

// One person, number 0, with all his ancestors of so many generations, himself counted.
[[nodiscard]] Stamboom MaakVoorouders(int generaties, Toeval& toeval);

// One person, number 0, with his descendants, so many together, and the partners of those who have
// children: one to five each, the eldest generation first.
[[nodiscard]] Stamboom MaakNakomelingen(int aantal, Toeval& toeval);

}  // namespace lb77::bench
