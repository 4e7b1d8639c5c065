// Writes an ancestor chart: a line a position, joined by characters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "ancestors/KwstOpties.h"
#include "ancestors/KwstSchema.h"
#include "reporting/Verloop.h"
#include "store/Gegevens.h"

namespace lb77 {

class TekstSchrijver;

// One run. The file is open and stays so, with no right margin.
class KwstSchSchrijver {
 public:
  KwstSchSchrijver(const KwstOpties& opties, const Gegevens& bronnen, TekstSchrijver& uit,
                   const Verloop& verloop);

  // Builds the chart and writes it with what stands around it. Vol is not among its results.
  [[nodiscard]] Uitslag Schrijf();

 private:
  void SchrijfRegel(int rij, std::int16_t laatste);
  void SchrijfNummer(int k);
  void SchrijfPersoon(std::int16_t nr);
  [[nodiscard]] std::string Gecodeerd(const std::string& tekst) const;

  const KwstOpties& opties_;
  Gegevens bronnen_;
  TekstSchrijver& uit_;
  const Verloop& verloop_;
  KwstSchema schema_;
  std::size_t langste_;  // digits of the longest number
};

}  // namespace lb77
