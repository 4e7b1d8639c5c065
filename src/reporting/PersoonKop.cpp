#include "reporting/PersoonKop.h"

#include "store/PersoonLB77.h"
#include "text/Getallen.h"

namespace lb77 {

PersoonKop::PersoonKop(Formulier& formulier, std::string_view wie)
    : Nr(formulier, "Nr" + std::string(wie), "Persoonsnummer:"),
      VoorNm(formulier, "VoorNm" + std::string(wie), "Voornamen:"),
      AchterNm(formulier, "AchterNm" + std::string(wie), "Achternaam:"),
      Periode(formulier, "Periode", "Periode:") {}

void PersoonKop::Toon(PersoonLB77& persoon, std::int16_t nr) {
  std::string voor;
  std::string achter;
  persoon.HeleNaam(nr, voor, achter, "<onbekend>");
  Nr.ZetTekst(GetalTekst(nr));
  VoorNm.ZetTekst(voor);
  AchterNm.ZetTekst(achter);
  Periode.ZetTekst(persoon.Periode(nr));
}

std::string PersoonKop::Naam() const {
  return VoorNm.Tekst() + " " + AchterNm.Tekst();
}

}  // namespace lb77
