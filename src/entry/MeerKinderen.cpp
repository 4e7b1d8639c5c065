#include "entry/MeerKinderen.h"

#include <memory>
#include <optional>
#include <string>

#include "entry/KindActies.h"
#include "text/Getallen.h"

namespace lb77 {

KaartVraag MeerKinderenVraag(Hoofdmodule& hoofd, std::int16_t nr) {
  return [&hoofd, nr] { return std::make_unique<MeerKinderen>(hoofd, nr); };
}

MeerKinderen::MeerKinderen(Hoofdmodule& hoofd, std::int16_t relatie)
    : KinderenKaart("MeerKinderen", "Toon Kinderen (vervolg)", hoofd, relatie, kRijen) {
  HangOp(BackButton);
}

KaartVraag MeerKinderen::Opnieuw() const {
  return MeerKinderenVraag(Hoofd(), RelatieNr());
}

void MeerKinderen::VoegToe() {
  VoegKindToeZonderVraag(Hoofd(), RelatieNr());
}

// kept: it asks with the prompt for adding.
void MeerKinderen::HaalWeg() {
  HaalKindWeg(Hoofd(), RelatieNr(), true);
}

bool MeerKinderen::NaarLijst() {
  RelatieLB77& relatie = Hoofd().Relatie;
  const std::int32_t vervolg = -std::int32_t{relatie.KindNr(kRijen)};
  if (vervolg <= 0) {
    relatie.LeegRelBuffer();
    return true;
  }
  const std::optional<std::int16_t> nr = NaarInt16(vervolg);
  if (nr && relatie.Lees(*nr) && relatie.IsVolgRecord()) return true;
  Hoofd().gesprek.Fout(std::string(kLeesfoutRelatie) + GetalTekst(vervolg));
  return false;
}

}  // namespace lb77
