// Writes the index on a descendant table: a row for each entry and for each of his partners.
#pragma once

#include <cstdint>
#include <string>

#include "descendants/GenOpties.h"
#include "descendants/GenTabel.h"
#include "output/Leesfout.h"
#include "reporting/Verloop.h"
#include "store/Gegevens.h"

namespace lb77 {

class TekstSchrijver;

// One run. The file is open and stays so; what was written stands, however the run ends.
class GenIdxSchrijver {
 public:
  GenIdxSchrijver(const GenTabel& tabel, const GenOpties& opties, const Gegevens& bronnen,
                  TekstSchrijver& uit, const Verloop& verloop)
      : tabel_(tabel), opties_(opties), bronnen_(bronnen), uit_(uit), verloop_(verloop) {}

  // Writes the whole index. Vol is not among its results.
  [[nodiscard]] Uitslag Schrijf();

 private:
  [[nodiscard]] Uitslag SchrijfKop();
  [[nodiscard]] int Volgende(int i) const;
  [[nodiscard]] Uitslag SchrijfHoofdpersoon(int i);
  [[nodiscard]] Uitslag SchrijfPartnersIndex(std::int16_t nr, const std::string& label);
  void SchrijfIndexRegel(std::int16_t persoon, const std::string& label, const std::string& doel);

  const GenTabel& tabel_;
  const GenOpties& opties_;
  Gegevens bronnen_;
  TekstSchrijver& uit_;
  const Verloop& verloop_;
};

}  // namespace lb77
