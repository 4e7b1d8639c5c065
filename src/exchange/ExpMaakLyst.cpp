#include "exchange/ExpMaakLyst.h"

#include "exchange/ExpLyst.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr TellerSoort kPersonen{"Personen", "PersonenLabel", "Aantal personen:"};
constexpr TellerSoort kRelaties{"Relaties", "RelatiesLabel", "Aantal relaties:"};
constexpr TellerSoort kRelatieNr{"RelatieNr", "RelNrLabel", "Bezig met relatie:"};

}  // namespace

ExpMaakLyst::ExpMaakLyst(Hoofdmodule& hoofd, const ExpSelectie& selectie)
    : WerkFormulier("ExpMaakLyst", "Exporteren - Geselecteerde records", hoofd),
      Personen(*this, kPersonen),
      Relaties(*this, kRelaties),
      RelatieNr(*this, kRelatieNr),
      selectie_(selectie) {
  ZetHulpOnderwerp("exporteren");
  Koppel(OKButton, BackButton);
}

std::filesystem::path ExpMaakLyst::Pad() const {
  return Hoofd().Ini.TempDir() / "EXP_LYST.TXT";
}

Verloop ExpMaakLyst::MaakVerloop(TellerRegel& aantal, TellerRegel& nummer) {
  return {[this] { return Afbreken(); },
          [this, &aantal, &nummer](int nr, int hoeveel) {
            aantal.Stand.ZetTekst(GetalTekst(hoeveel));
            nummer.Stand.ZetTekst(GetalTekst(nr));
            Ververs();
          }};
}

void ExpMaakLyst::Werk() {
  const auto schrijf = [&](TekstSchrijver& uit) -> Uitslag {
    const Gegevens gegevens = Hoofd().MaakGegevens();
    const Uitslag personen = SchrijfPersonenLyst(uit, gegevens, selectie_.SelPersonen,
                                                 MaakVerloop(Personen, PersoonsNr));
    if (!(personen == Einde::Klaar)) return personen;
    return SchrijfRelatiesLyst(uit, gegevens, selectie_.SelRelaties,
                               MaakVerloop(Relaties, RelatieNr));
  };
  gelukt_ = MaakVerslag({Pad(), Hoofd().instellingen.Tekstbr()}, schrijf);
  if (gelukt_) Sluit();
}

}  // namespace lb77
