// Writes a descendant table as running text: branch by branch, or generation by generation.
#pragma once

#include <cstdint>
#include <string>

#include "descendants/GenOpties.h"
#include "descendants/GenTabel.h"
#include "output/Verteller.h"
#include "reporting/Verloop.h"
#include "store/Gegevens.h"

namespace lb77 {

class TekstSchrijver;

// One run. The file is open and stays so; what was written stands, however the run ends.
class GenSchrijver {
 public:
  GenSchrijver(const GenTabel& tabel, const GenOpties& opties, const Gegevens& bronnen,
               const ZinOpties& zinOpties, TekstSchrijver& uit, const Verloop& verloop);

  // Writes the whole report. Vol is not among its results.
  [[nodiscard]] Uitslag Schrijf();

 private:
  // Of whom relations are told: of an entry with the partners' parents and the children, of a child
  // who has no entry without.
  enum class Van { Hoofdpersoon, Kind };

  [[nodiscard]] bool SchrijfStamouder();
  [[nodiscard]] bool SchrijfHoofdpersoon(int i);
  [[nodiscard]] bool SchrijfVerhaal(int i);
  [[nodiscard]] bool SchrijfOuders();
  [[nodiscard]] int Volgende(int i) const;

  [[nodiscard]] bool SchrijfGezinnen(std::int16_t nr, Van van);
  [[nodiscard]] bool SchrijfGezin(const GezinBlik& gezin, const Kindtab& kinderen, Van van);
  [[nodiscard]] bool SchrijfPartner(const GezinBlik& gezin, Van van);
  [[nodiscard]] bool SchrijfKinderen(const Kindtab& kinderen);
  [[nodiscard]] bool SchrijfKind(int plaats, std::int16_t kind);
  void SchrijfRelatieOpm(const GezinBlik& gezin);

  void SchrijfGeneratieKop();
  void SchrijfKop(const std::string& label);
  void SchrijfVerwijzing(int i);
  [[nodiscard]] std::string MetLink(const std::string& label) const;
  void BreekAf(int regels);

  const GenTabel& tabel_;
  const GenOpties& opties_;
  Gegevens bronnen_;
  Verteller verteller_;
  TekstSchrijver& uit_;
  const Verloop& verloop_;
  int huidigeGen_ = 1;
};

}  // namespace lb77
