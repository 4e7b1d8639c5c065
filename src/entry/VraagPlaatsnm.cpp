#include "entry/VraagPlaatsnm.h"

#include <algorithm>

#include "entry/PlaatsVraagMetDialogen.h"
#include "store/PlaatsVelden.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::int16_t kBeginVanNaam = -1;  // asks at each match
constexpr std::int16_t kNooitToevoegen = -1;

}  // namespace

VraagPlaatsnm::VraagPlaatsnm(Hoofdmodule& hoofd)
    : InvoerFormulier("VraagPlaatsnm", "Ga naar een Plaatsnaam", hoofd),
      PlaatsnaamTekst(*this, "PlaatsnaamTekst", "Plaatsnaam:", plaatsveld::Naam.breedte) {
  ZetHulpOnderwerp("plaatsen");
  PlaatsnaamTekst.BijVerlaten([this] { return PlaatsnaamTekstVerlaten(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(PlaatsnaamTekst);
}

// A name that was found is not asked about again.
bool VraagPlaatsnm::PlaatsnaamTekstVerlaten() {
  const std::string& naam = PlaatsnaamTekst.Tekst();
  if (gevonden_ > 0 && naam == gezocht_) return true;
  gezocht_ = naam;
  gevonden_ = 0;
  PlaatsLB77& plaats = Hoofd().Plaats;
  if (!naam.empty()) {
    PlaatsVraagMetDialogen vraag(Hoofd().gesprek);
    const std::int16_t nr = plaats.Nr(naam, kBeginVanNaam, "", kNooitToevoegen, vraag);
    gevonden_ = std::max<std::int16_t>(nr, 0);
  }
  PlaatsnrTekst.ZetTekst(NrTekst(gevonden_));
  ProvcodeTekst.ZetTekst(gevonden_ > 0 ? plaats.Prov(gevonden_) : std::string());
  return true;
}

void VraagPlaatsnm::OKButtonKlik() {
  nr_ = gevonden_;
  Sluit();
}

}  // namespace lb77
