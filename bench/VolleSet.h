// A file set that is nearly full: what the checks and the lists over whole files are measured on.
#pragma once

#include "Meetset.h"
#include "forms/StilGesprek.h"
#include "store/Bestandenset.h"
#include "store/OpmLB77.h"
#include "store/Opslag.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/RelatieLB77.h"

namespace lb77::bench {

inline constexpr int kVollePersonen = 32000;
inline constexpr int kVolleRelaties = 12000;
inline constexpr int kVollePlaatsen = 8000;
inline constexpr int kVolleOpmerkingen = 20000;

// The record classes on the files of a set. Throws std::runtime_error when it does not open.
struct Bronnen {
  explicit Bronnen(const Meetset& set);

  Bestandenset bestanden;
  Volgers volgers;
  StilGesprek gesprek;
  Schrijfwijze schrijfwijze;
  Opslag opslag{bestanden, volgers, gesprek, schrijfwijze};
  PersoonLB77 persoon{opslag};
  RelatieLB77 relatie{opslag};
  PlaatsLB77 plaats{opslag};
  OpmLB77 opmerking{opslag, persoon, relatie};
};

// Makes the numbers above full: a generated population, places of which every tenth has the name of
// another, and remarks of ten lines. Throws std::runtime_error when it can't.
void MaakVol(Meetset& set);

// Seconds to read all records of the four files once, in their order.
[[nodiscard]] double EenmaalLezen(const Meetset& set);

}  // namespace lb77::bench
