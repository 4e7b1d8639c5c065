#include "entry/OKPersoon.h"

#include "app/Hoofdmodule.h"
#include "entry/PersoonInfo.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

OKPersoon::OKPersoon(Hoofdmodule& hoofd, std::string_view voornaam, std::string_view achternaam)
    : Formulier("OKPersoon", "Zoek Persoon op Naam"), hoofd_(hoofd) {
  ZetHulpOnderwerp("zoeken");
  const std::string naam = std::string(Trim(voornaam)) + " " + std::string(Trim(achternaam));
  naam_ = Trim(naam);
  InfoTekst.ZetAlleenLezen(true);
  InfoTekst.ZetLeesnaam("Gegevens van de persoon");
  JaButton.BijKlik([this] { Sluit(); });
  NeeButton.BijKlik([this] { NeeButtonKlik(); });
  ZetEersteVeld(JaButton);
}

void OKPersoon::BijLaden() {
  const std::int16_t nr = hoofd_.volgers.HuidigPersoonNr;
  PNr.ZetTekst(NrTekst(nr));
  NaamVeld.ZetTekst(naam_);
  InfoTekst.ZetTekst(PersoonInfo(hoofd_.MaakGegevens(), hoofd_.Ini.ToonTrouw(), nr));
}

// Leaving without an answer is No.
bool OKPersoon::MagSluiten() {
  hoofd_.volgers.HuidigPersoonNr = 0;
  return true;
}

void OKPersoon::NeeButtonKlik() {
  hoofd_.volgers.HuidigPersoonNr = 0;
  Sluit();
}

}  // namespace lb77
