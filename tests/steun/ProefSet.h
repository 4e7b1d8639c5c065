// An open file set in a directory of its own, with a user that answers from a list.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "steun/BouwFamilie.h"
#include "steun/NepGesprek.h"
#include "steun/TijdelijkeMap.h"
#include "store/Bestandenset.h"
#include "store/OpmLB77.h"
#include "store/Opslag.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/RelatieLB77.h"
#include "store/SetPaden.h"
#include "store/Volgers.h"
#include "text/Schrijfwijze.h"

namespace lb77 {

// The set PROEF, new and empty, open and with its admin records.
class ProefSet {
 public:
  ProefSet() : ProefSet(Bestandenset()) { MaakNieuw(); }
  // The same over files that an opener of the test gives.
  explicit ProefSet(Bestandenset::Opener opener) : ProefSet(Bestandenset(std::move(opener))) {
    MaakNieuw();
  }

  // Closes the files and opens them again, as a next session would: buffers and trackers are those
  // of a program that has just started.
  void Heropen();
  // The boxes shown since the last time this was asked.
  std::vector<std::string> Getoond() { return gesprek.Neem(); }

  TijdelijkeMap map;
  SetPaden paden = SetPaden::Van(map.Pad(), "PROEF");
  Bestandenset bestanden;
  Volgers volgers;
  NepGesprek gesprek;
  Schrijfwijze schrijfwijze;
  Opslag opslag{bestanden, volgers, gesprek, schrijfwijze};
  PersoonLB77 Persoon{opslag};
  RelatieLB77 Relatie{opslag};
  PlaatsLB77 Plaats{opslag};
  OpmLB77 Opmerking{opslag, Persoon, Relatie};
  BouwFamilie bouw{Persoon, Relatie, Plaats, Opmerking};

 private:
  explicit ProefSet(Bestandenset set) : bestanden(std::move(set)) {}
  void MaakNieuw();
};

}  // namespace lb77
