#include "reporting/KetenFormulier.h"

#include "entry/ToonPersoon.h"
#include "output/ToonTekst.h"

namespace lb77 {

void KetenFormulier::KoppelTerug(Knop& terug) {
  terug.BijKlik([this] { TerugKlik(); });
}

void KetenFormulier::TerugKlik() {
  StopKeten();
  Sluit();
}

void KetenFormulier::StopKeten() {
  Hoofd().volgers.HuidigPersoonNr = -1;
}

bool KetenFormulier::GaatDoor() const {
  return Hoofd().volgers.HuidigPersoonNr != -1;
}

void KetenFormulier::Stap(Formulier&& formulier) {
  if (GaatDoor()) Hoofd().gesprek.ToonModaal(formulier);
}

void KetenFormulier::ToonPersoonskaart(std::int16_t nr) {
  LoopKaarten(Hoofd().gesprek, ToonPersoonVraag(Hoofd(), nr));
}

void KetenFormulier::ToonTekstbestand(const std::filesystem::path& pad, std::string_view titel,
                                      bool inHTML) {
  Hoofd().gesprek.Toon<ToonTekst>(Hoofd(), pad, titel, inHTML);
}

}  // namespace lb77
