// Writes the compact and the extended family sheet: head, relation, partner and children as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "descendants/GezinDelen.h"
#include "descendants/GezinOpties.h"
#include "output/TekstSchrijver.h"
#include "output/Verteller.h"
#include "reporting/Verloop.h"

namespace lb77 {

// One run. The file is open and stays so. A person who can't be read is told as "?".
class GezinSchrijver {
 public:
  GezinSchrijver(const GezinOpties& opties, const Gegevens& bronnen, TekstSchrijver& uit);

  // Klaar with all lines ended, or the relation of the sheet when it can't be read.
  [[nodiscard]] Uitslag Schrijf();

 private:
  // Whose remarks follow.
  struct Eigenaar {
    std::int16_t opmRecord = 0;
    std::int16_t opmCode = 0;
  };
  // The rubrics of one event; 0 where no remark follows.
  struct Rubrieken {
    int label = 0;
    int plaats = 0;
    int datum = 0;
  };
  // The rubrics of two events, and what stands between each label and the place.
  struct PaarRubrieken {
    Rubrieken een;
    Rubrieken twee;
    std::string soort1;
    std::string soort2;
  };

  [[nodiscard]] Uitslag SchrijfGezin(bool hoofdIsMan);
  // `metRelatie`: with the number of the relation behind his own.
  void SchrijfGezinsHoofd(std::int16_t nr, bool metRelatie);
  void SchrijfNamen(const Eigenaar& van, const PersoonBlik& persoon, bool metRelatie);
  void SchrijfLeven(const Eigenaar& van, const PersoonBlik& persoon);
  void SchrijfBladOuders(const PersoonBlik& persoon);
  void SchrijfVerbintenis(const GezinBlik& gezin);

  void SchrijfKinderen(const KinderenBlik& kinderen);
  void SchrijfKindNummers(const KinderenBlik& kinderen);
  void SchrijfKind(int plaats, std::int16_t nr);
  void SchrijfKindLeven(const PersoonBlik& kind);
  void SchrijfKindPaar(const PersoonBlik& kind, const Gebeurtenispaar& paar,
                       const PaarRubrieken& rubrieken);

  // Each event on a line of its own, or both on this one.
  void SchrijfPaar(const Eigenaar& van, const Gebeurtenispaar& paar, const PaarRubrieken& rubrieken,
                   bool eigenRegels);
  // What follows a label.
  void SchrijfGebeurtenis(const Eigenaar& van, const Gebeurtenis& gebeurtenis,
                          std::string_view soort, std::string_view corr,
                          const Rubrieken& rubrieken);
  void SchrijfTot(const Eigenaar& van, const Gebeurtenis& einde, const Rubrieken& rubrieken);
  void SchrijfDatum(const Gebeurtenis& gebeurtenis, std::string_view corr);
  void SchrijfOpm(const Eigenaar& van, int rubriek);

  void OpNieuweRegel(std::string_view tekst);
  // Ends the line, with so many empty ones behind it.
  void EindeMetLeeg(int aantal);
  // Behind a blank. An empty text would set free the word that is held back.
  void Los(std::string_view tekst);

  const GezinOpties& opties_;
  Gegevens bronnen_;
  TekstSchrijver& uit_;
  Verteller verteller_;
  GezinDelen delen_;
};

}  // namespace lb77
