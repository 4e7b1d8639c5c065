#include "reporting/PersoonKop.h"

#include "app/Hoofdmodule.h"
#include "text/Getallen.h"

namespace lb77 {

PersoonKop::PersoonKop(Formulier& formulier, std::string_view wie)
    : Nr(formulier, "Nr" + std::string(wie), "Persoonsnummer:"),
      VoorNm(formulier, "VoorNm" + std::string(wie), "Voornamen:"),
      AchterNm(formulier, "AchterNm" + std::string(wie), "Achternaam:"),
      Periode(formulier, "Periode", "Periode:") {}

void PersoonKop::Toon(Hoofdmodule& hoofd, std::int16_t nr) {
  std::string voor;
  std::string achter;
  hoofd.Persoon.HeleNaam(nr, voor, achter, "<onbekend>");
  Nr.ZetTekst(GetalTekst(nr));
  VoorNm.ZetTekst(voor);
  AchterNm.ZetTekst(achter);
  Periode.ZetTekst(hoofd.Persoon.Periode(nr));
}

std::string PersoonKop::Naam() const {
  return VoorNm.Tekst() + " " + AchterNm.Tekst();
}

}  // namespace lb77
