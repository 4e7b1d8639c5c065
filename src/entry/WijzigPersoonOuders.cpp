// The parents of WijzigPersoon: whom the fields mean, and the link to their relation.
#include <string>

#include "entry/KindActies.h"
#include "entry/Koppelingen.h"
#include "entry/WijzigPersoon.h"
#include "text/Getallen.h"

namespace lb77 {

Koppelingen WijzigPersoon::Koppel() const {
  return Koppelwerk(Hoofd());
}

void WijzigPersoon::ToonOuders(std::int16_t relatie) {
  RelatieLB77& bron = Hoofd().Relatie;
  const bool bekend = relatie > 0 && bron.Lees(relatie);
  const std::int16_t man = bekend ? bron.ManNr() : std::int16_t{0};
  const std::int16_t vrouw = bekend ? bron.VrouwNr() : std::int16_t{0};
  Pa.Toon(man);
  Ma.Toon(vrouw);
}

// The focus goes to the button that leads back: the parents are known now.
bool WijzigPersoon::RelNrOudersVerlaten() {
  const std::int16_t relatie = RelNrOuders.Nr();
  if (relatie != 0 && !Hoofd().Relatie.Lees(relatie)) return false;
  ToonOuders(relatie);
  if (relatie != 0) ZetFocus(BackButton);
  return true;
}

bool WijzigPersoon::ZoekOpNaam(PersoonVak& ouder, std::string_view geslacht) {
  if (ouder.VulNrUitNaam(geslacht)) return true;
  ZetFocus(ouder.VoorNm);
  return false;
}

bool WijzigPersoon::HoortBijNaam(PersoonVak& ouder, std::string_view naam) {
  return ouder.NrHoortBijNaam() ||
         Weiger(ouder.VoorNm, "Recordnr " + std::string(naam) + " hoort niet bij Naam");
}

bool WijzigPersoon::VindRelatie() {
  if (!RelNrOuders.Tekst().empty() || (Pa.Nr() == 0 && Ma.Nr() == 0)) return true;
  const std::int16_t relatie = Koppel().ZoekRelatie(Pa.Nr(), Ma.Nr());
  if (relatie == 0) {
    ZetFocus(Pa.RecordNr);
    return false;
  }
  RelNrOuders.ToonNr(relatie);
  return true;
}

bool WijzigPersoon::KloptRelatie() {
  const std::int16_t nr = RelNrOuders.Nr();
  if (nr <= 0) return true;
  const std::string nummer = " " + GetalTekst(nr);
  const RelatieLB77& relatie = Hoofd().Relatie;
  if (!Hoofd().Relatie.Lees(nr)) {
    Hoofd().gesprek.Fout("Fout bij het lezen van Relatie" + nummer);
    ZetFocus(RelNrOuders);
    return false;
  }
  if (Pa.Nr() != relatie.ManNr()) {
    return Weiger(Pa.RecordNr, "Vader komt niet voor in Relatie" + nummer);
  }
  if (Ma.Nr() != relatie.VrouwNr()) {
    return Weiger(Ma.RecordNr, "Moeder komt niet voor in Relatie" + nummer);
  }
  return true;
}

// The old parents stand there again, as behind the leave check of their relation.
void WijzigPersoon::HerstelOuders() {
  RelNrOuders.ToonNr(oudeOuders_);
  static_cast<void>(Controleer(RelNrOuders));
  ZetFocus(RelNrOuders);
}

bool WijzigPersoon::MaakLos() {
  if (losgemaakt_ || oudeOuders_ <= 0 || RelNrOuders.Nr() == oudeOuders_) return true;
  if (!Hoofd().gesprek.Vraag("Moet de koppeling met de ouders verbroken worden ?")) {
    HerstelOuders();
    return false;
  }
  losgemaakt_ = Koppel().VerplaatsKind(nr_, oudeOuders_, 0);
  if (losgemaakt_) return true;
  Hoofd().gesprek.Waarschuw("Fout bij het verbreken van de koppeling met de ouders");
  HerstelOuders();
  return false;
}

bool WijzigPersoon::MaakVast() {
  const std::int16_t nieuw = RelNrOuders.Nr();
  if (nieuw <= 0 || (nieuw == oudeOuders_ && !losgemaakt_)) return true;
  if (Koppel().VerplaatsKind(nr_, 0, nieuw)) return true;
  Hoofd().gesprek.Waarschuw("Fout bij het koppelen aan de ouders");
  return false;
}

}  // namespace lb77
