#include "entry/PlaatsVak.h"

#include <cstddef>

#include "entry/PlaatsVraagMetDialogen.h"
#include "store/PlaatsVelden.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kCijfers = 5;
constexpr std::int16_t kHeleNaam = 0;    // the first equal name, without a question
constexpr std::int16_t kNaEenVraag = 0;  // an unknown place is added when the user agrees
constexpr std::string_view kGeenProv = "  ";

}  // namespace

PlaatsVak::Deel::Deel(PlaatsVak& geheel, Controle controle, InvoerFormulier& formulier,
                      std::string_view naam, std::string_view bijschrift, std::size_t breedte)
    : InvoerVak(formulier, naam, bijschrift, breedte), geheel_(geheel), controle_(controle) {}

bool PlaatsVak::Deel::OpVerlaten() {
  return InvoerVak::OpVerlaten() && (geheel_.*controle_)();
}

PlaatsVak::PlaatsVak(InvoerFormulier& formulier, std::string_view stam, std::string_view bijschrift)
    : Nm(*this, &PlaatsVak::NaamVerlaten, formulier, std::string(stam) + "Nm", bijschrift,
         plaatsveld::Naam.breedte),
      Nr(*this, &PlaatsVak::NrVerlaten, formulier, std::string(stam) + "Nr", "", kCijfers),
      hoofd_(formulier.Hoofd()) {
  Nr.ZetFilter(AlleenCijfers);
}

void PlaatsVak::Toon(std::int16_t plaatsNr) {
  Neem(plaatsNr, hoofd_.Plaats.Naam(plaatsNr));
}

void PlaatsVak::Neem(std::int16_t plaatsNr, std::string_view naam) {
  plaatsNr_ = plaatsNr;
  naam_ = naam;
  Nm.ZetTekst(naam_);
  Nr.ZetTekst(NrTekst(plaatsNr));
}

bool PlaatsVak::IsOngewijzigd() const {
  return Nm.Tekst() == Trim(naam_) && Nr.Tekst() == NrTekst(plaatsNr_);
}

bool PlaatsVak::NaamVerlaten() {
  if (IsOngewijzigd()) return true;
  const std::string naam = Nm.Tekst();
  if (naam.empty()) {
    Neem(0, "");
    return true;
  }
  // The name of the number that stands there keeps its qualifier.
  if (Hoofdletters(naam) == Hoofdletters(Trim(naam_))) {
    Neem(plaatsNr_, naam_);
    return true;
  }
  PlaatsVraagMetDialogen vraag(hoofd_.gesprek);
  const std::int16_t nr = hoofd_.Plaats.Nr(naam, kHeleNaam, kGeenProv, kNaEenVraag, vraag);
  if (nr < 1) return false;
  Toon(nr);
  return true;
}

bool PlaatsVak::NrVerlaten() {
  if (IsOngewijzigd()) return true;
  const std::int32_t getal = Getalwaarde(Nr.Tekst());
  if (getal == 0) {
    Neem(0, "");
    return true;
  }
  const auto nr = NaarInt16(getal);
  const std::string naam = nr ? hoofd_.Plaats.Naam(*nr) : std::string();
  if (naam.empty()) {
    hoofd_.gesprek.Waarschuw("Recordnummer bestaat niet");
    return false;
  }
  Neem(*nr, naam);
  return true;
}

void PlaatsVak::ZetZichtbaar(bool zichtbaar) {
  Nm.ZetZichtbaar(zichtbaar);
  Nr.ZetZichtbaar(zichtbaar);
}

}  // namespace lb77
