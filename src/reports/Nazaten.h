// The descendants of a person, each read once, and by how many ways each is one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "reporting/Verloop.h"
#include "reports/Wegen.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"

namespace lb77 {

// The years seen, 0 for none.
struct Jaren {
  int laagste = 0;
  int hoogste = 0;

  // A year of 0 is not known.
  void Neem(int jaar);
};

// One person as the file has him.
struct Nazaat {
  std::int16_t nr = 0;
  int geboorte = 0;  // year
  int begin = 0;     // year of birth, or else of baptism
  int einde = 0;     // year of death, or else of burial
  Jaren huwelijken;
  std::vector<std::int16_t>
      kinderen;  // through all relations, in their order; as often as he stands there
};

// Reads what a walk needs, and keeps it for the next walk.
class Nazaten {
 public:
  // References must outlive it. The buffers and trackers change.
  Nazaten(PersoonLB77& persoon, RelatieLB77& relatie) : persoon_(persoon), relatie_(relatie) {}

  // The index of the person; nothing for a number of nobody and a record that can't be read.
  [[nodiscard]] std::optional<std::size_t> Vind(std::int16_t nr);
  [[nodiscard]] const Nazaat& operator[](std::size_t wie) const { return lijst_[wie]; }
  // How many were read.
  [[nodiscard]] std::size_t Aantal() const { return lijst_.size(); }

  // All whom the walk from `wie` reaches, as TelWegen counts them, by their index here: who is reached
  // by two ways counts twice, and so do those below him. Who is an ancestor on the path, or `boven`,
  // is neither followed nor counted again. False when it was stopped.
  [[nodiscard]] bool Loop(std::size_t wie, std::optional<std::size_t> boven, const Verloop& verloop,
                          std::vector<Telling>& tellingen);

 private:
  [[nodiscard]] Nazaat Lees(std::int16_t nr);
  void LeesGezin(std::int16_t relNr, Nazaat& nazaat);
  [[nodiscard]] bool MaakNet(std::vector<std::size_t>& leden, std::optional<std::size_t> boven,
                             const Verloop& verloop, Net& net);

  PersoonLB77& persoon_;
  RelatieLB77& relatie_;
  std::vector<Nazaat> lijst_;
  std::vector<std::int32_t> plek_;  // by number: index, kOngelezen or kNiemand
};

}  // namespace lb77
