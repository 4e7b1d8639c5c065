// Writes an ancestor table as running text: generation by generation, couple by couple.
#pragma once

#include <cstdint>
#include <string_view>

#include "ancestors/KwstGang.h"
#include "ancestors/KwstOpties.h"
#include "ancestors/KwstTabel.h"
#include "output/Verteller.h"
#include "reporting/Verloop.h"
#include "store/Gegevens.h"

namespace lb77 {

class TekstSchrijver;

// One run. The file is open and stays so; what was written stands, however the run ends.
class KwstSchrijver {
 public:
  KwstSchrijver(const KwstTabel& tabel, const KwstOpties& opties, const Gegevens& bronnen,
                const ZinOpties& zinOpties, TekstSchrijver& uit, const Verloop& verloop);

  // Writes the whole report. Vol is not among its results.
  [[nodiscard]] Uitslag Schrijf();

 private:
  // What the text tells of a parent besides.
  struct Ouder : KwstOuder {
    std::int16_t opmRecord = 0;
    std::int16_t opmCode = 0;
    std::int16_t relNrOuders = 0;
  };
  struct Paar {
    Ouder vader;
    Ouder moeder;
    std::int16_t relatie = 0;
    int volgNr = 1;  // the relation's place among those of the father
    std::int16_t opmRecord = 0;
    std::int16_t opmCode = 0;

    [[nodiscard]] bool Beiden() const { return vader.Verteld() && moeder.Verteld(); }
  };

  [[nodiscard]] bool SchrijfProband();
  [[nodiscard]] bool SchrijfProbandAlleen(const Ouder& proband);

  [[nodiscard]] bool LeesOuder(Ouder& ouder);
  [[nodiscard]] bool SchrijfPaar(Paar& paar);
  [[nodiscard]] bool SchrijfOuder(Ouder& ouder, Paar& paar);
  [[nodiscard]] bool SchrijfHuwelijk(Paar& paar);
  void SchrijfOpmerkingen(const Paar& paar);
  [[nodiscard]] bool SchrijfBroersZussen(const Paar& paar);
  [[nodiscard]] bool SchrijfBroersZussenVan(const Ouder& ouder);

  [[nodiscard]] bool SchrijfKinderen(const Ouder& van, bool vanProband);
  [[nodiscard]] bool SchrijfKind(const KwstKind& kind, bool vanProband);
  [[nodiscard]] bool SchrijfAndereRelaties(std::int16_t nr, std::int16_t hoofdRel,
                                           bool eenOverslaan, int& volgNr);
  [[nodiscard]] bool ZegtIets(const RelatieLB77& relatie) const;

  void SchrijfGeneratieKop(int generatie);
  void SchrijfKop(std::string_view nummer);
  void SchrijfLinks(int index);

  const KwstTabel& tabel_;
  const KwstOpties& opties_;
  Gegevens bronnen_;
  Verteller verteller_;
  TekstSchrijver& uit_;
  KwstGang gang_;
  int beginGen_;
  int eersteGen_;  // of the first entry that is written; a heading links no further back
  int maxGen_;
  int huidigeGen_;
  int linkIndex_ = 1;  // the next entry whose link to it has not been written
};

}  // namespace lb77
