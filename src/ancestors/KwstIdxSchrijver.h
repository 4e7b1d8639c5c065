// Writes an ancestor table as a list: one row for each person whom the text names.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ancestors/KwstGang.h"
#include "ancestors/KwstOpties.h"
#include "ancestors/KwstTabel.h"
#include "output/Leesfout.h"
#include "reporting/Verloop.h"
#include "store/Gegevens.h"

namespace lb77 {

class TekstSchrijver;

// One run. The file is open, as wide as a row, and stays so; what was written stands, however the run
// ends. Rows stand in the order of the walk. A person who can't be read has none; a relation that
// can't be read ends the report.
class KwstIdxSchrijver {
 public:
  KwstIdxSchrijver(const KwstTabel& tabel, const KwstOpties& opties, const Gegevens& bronnen,
                   TekstSchrijver& uit, const Verloop& verloop);

  // Writes the whole list. Vol is not among its results.
  [[nodiscard]] Uitslag Schrijf();

 private:
  // Where the text tells of a person: at a kwartier, behind the letter of a brother or sister.
  struct Vindplaats {
    std::string kwartier;
    std::string letter = {};

    [[nodiscard]] std::string Nummer() const { return kwartier + letter; }
  };

  [[nodiscard]] bool SchrijfProband();
  [[nodiscard]] bool SchrijfStel(const KwstStel& stel);
  [[nodiscard]] bool SchrijfOuder(const KwstOuder& ouder, std::int16_t relatie,
                                  std::string_view code);
  [[nodiscard]] bool SchrijfBroersZussen(const KwstOuder& ouder);

  void SchrijfIndexRegel(std::int16_t nr, const Vindplaats& waar, std::string_view code);
  [[nodiscard]] bool SchrijfPartnersIndex(std::int16_t nr, std::int16_t hoofdRel,
                                          const Vindplaats& waar);
  [[nodiscard]] bool SchrijfOudersIndex(std::int16_t relNr, const Vindplaats& waar);
  [[nodiscard]] bool SchrijfKinderenIndex(std::int16_t relNr, const KwstOuder& van);

  [[nodiscard]] bool LeesRelatie(std::int16_t relNr);
  [[nodiscard]] std::string NummerVan(const KwstOuder& ouder) const;

  const KwstTabel& tabel_;
  const KwstOpties& opties_;
  Gegevens bronnen_;
  TekstSchrijver& uit_;
  KwstGang gang_;
  Leesfout fout_;  // what ended the report
};

}  // namespace lb77
