#include "entry/ToonKinderen.h"

#include <memory>

#include "entry/KindActies.h"
#include "entry/MeerKinderen.h"

namespace lb77 {

KaartVraag ToonKinderenVraag(Hoofdmodule& hoofd, std::int16_t nr) {
  return [&hoofd, nr] { return std::make_unique<ToonKinderen>(hoofd, nr); };
}

ToonKinderen::ToonKinderen(Hoofdmodule& hoofd, std::int16_t relatie)
    : KinderenKaart("ToonKinderen", "Toon Kinderen", hoofd, relatie, 1) {
  KindVolg.BijKlik([this] { KindVolgKlik(); });
  MeerButton.BijKlik([this] { MeerButtonKlik(); });
  HangOp(BackButton);
}

KaartVraag ToonKinderen::Opnieuw() const {
  return ToonKinderenVraag(Hoofd(), RelatieNr());
}

// The children are those of the relation itself; its last slot tells whether there are more.
bool ToonKinderen::NaarLijst() {
  MeerButton.ZetZichtbaar(Hoofd().Relatie.KindNr(kRijen) < 0);
  return true;
}

void ToonKinderen::VoegToe() {
  VoegKindToe(Hoofd(), RelatieNr());
}

void ToonKinderen::HaalWeg() {
  HaalKindWeg(Hoofd(), RelatieNr(), false);
}

void ToonKinderen::KindVolgKlik() {
  OrdenKinderen(Hoofd(), RelatieNr());
  LaadOpnieuw(KindVolg);
}

void ToonKinderen::MeerButtonKlik() {
  Ga(MeerKinderenVraag(Hoofd(), RelatieNr()));
}

}  // namespace lb77
