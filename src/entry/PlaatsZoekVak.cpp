#include "entry/PlaatsZoekVak.h"

#include <algorithm>

#include "entry/PlaatsVraagMetDialogen.h"
#include "store/PlaatsVelden.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::int16_t kBeginVanNaam = -1;  // asks at each match
constexpr std::int16_t kNooitToevoegen = -1;

}  // namespace

PlaatsZoekVak::PlaatsZoekVak(InvoerFormulier& formulier, const PlaatsZoekSoort& soort)
    : Naam(formulier, soort.naam, "Plaatsnaam:", plaatsveld::Naam.breedte),
      Nr(formulier, soort.nr, "Plaatscode:"),
      Prov(formulier, soort.prov, "Provinciecode:"),
      hoofd_(formulier.Hoofd()) {
  Naam.BijVerlaten([this] { return NaamVerlaten(); });
}

// A name that was found is not asked about again.
bool PlaatsZoekVak::NaamVerlaten() {
  const std::string& naam = Naam.Tekst();
  if (gevonden_ > 0 && naam == gezocht_) return true;
  gezocht_ = naam;
  gevonden_ = 0;
  PlaatsLB77& plaats = hoofd_.Plaats;
  if (!naam.empty()) {
    PlaatsVraagMetDialogen vraag(hoofd_.gesprek);
    const std::int16_t nr = plaats.Nr(naam, kBeginVanNaam, "", kNooitToevoegen, vraag);
    gevonden_ = std::max<std::int16_t>(nr, 0);
  }
  Nr.ZetTekst(NrTekst(gevonden_));
  Prov.ZetTekst(gevonden_ > 0 ? plaats.Prov(gevonden_) : std::string());
  return true;
}

}  // namespace lb77
