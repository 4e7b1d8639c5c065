#include "reporting/WerkFormulier.h"

#include "app/Hoofdmodule.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

std::string GeenVerslag(const Leesfout& fout) {
  const std::string soort =
      fout.bestand == BestandSoort::Relaties ? "Relatierecord " : "Persoonsrecord ";
  return soort + GetalTekst(fout.nr) + " kan niet worden gelezen. Er is geen verslag gemaakt.";
}

}  // namespace

void WerkFormulier::Koppel(Knop& ok, Knop& terug) {
  if (begin_ == WerkBegin::Vanzelf) {
    ok.BijKlik([this] { Sluit(); });
    KoppelTerug(terug);
    return;
  }
  ok.BijKlik([this, &ok] { OkKlik(ok); });
  terug.BijKlik([this] { Sluit(); });
}

void WerkFormulier::OkKlik(Knop& ok) {
  ok.ZetIngeschakeld(false);
  Begin();
  ok.ZetIngeschakeld(true);
}

void WerkFormulier::BijActiveren() {
  if (begin_ == WerkBegin::Vanzelf) Begin();
}

// A wish to stop the run before is none to stop this one.
void WerkFormulier::Begin() {
  WisStop();
  ZetBezig(true);
  Werk();
  ZetBezig(false);
}

bool WerkFormulier::Afbreken() {
  Gesprek& gesprek = Hoofd().gesprek;
  if (!gesprek.StopGevraagd(*this)) return false;
  if (!gesprek.Vraag("Opbouw Afbreken ?")) {
    WisStop();
    return false;
  }
  Stop();
  return true;
}

void WerkFormulier::Ververs() {
  Hoofd().gesprek.Ververs(*this);
}

bool WerkFormulier::MaakVerslag(const VerslagBestand& bestand,
                                const std::function<Uitslag(TekstSchrijver&)>& schrijf) {
  return GaatVerder(SchrijfVerslag(bestand, Hoofd().gesprek, schrijf));
}

bool WerkFormulier::GaatVerder(const Uitslag& uitslag) {
  switch (uitslag.einde) {
    case Einde::Klaar:
    case Einde::Vol:
      return true;
    case Einde::Leesfout:
      Hoofd().gesprek.Fout(GeenVerslag(uitslag.fout));
      break;
    case Einde::Schrijffout:
      break;
    case Einde::Afgebroken:
      Stop();
      return false;  // stays open: the user sees how far it came, and leaves
  }
  Stop();
  Sluit();
  return false;
}

// What is no part of a chain stops none.
void WerkFormulier::Stop() {
  if (begin_ == WerkBegin::Vanzelf) StopKeten();
}

}  // namespace lb77
