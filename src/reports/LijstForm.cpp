#include "reports/LijstForm.h"

#include <filesystem>

#include "text/Getallen.h"

namespace lb77 {

LijstForm::LijstForm(const LijstSoort& soort, Hoofdmodule& hoofd)
    : WerkFormulier(soort.naam, soort.titel, hoofd, WerkBegin::OpKnop), soort_(soort) {
  ZetHulpOnderwerp(soort.hulp);
}

void LijstForm::Koppel(Bediening& eerste, Knop& ok, Knop& terug, Teller* teller) {
  WerkFormulier::Koppel(ok, terug);
  ZetEersteVeld(eerste);
  eerste_ = &eerste;
  teller_ = teller;
}

void LijstForm::Werk() {
  if (teller_) teller_->ZetTekst({});
  if (!IsGenoeg()) {
    Hoofd().gesprek.Waarschuw(soort_.leeg);
    ZetFocus(*eerste_);
    return;
  }
  RecordBron bron(Hoofd().MaakOpslag());
  const Verloop verloop{[this] { return Afbreken(); },
                        [this](int, int aantal) {
                          if (teller_) teller_->ZetTekst(GetalTekst(aantal));
                          Ververs();
                        }};
  if (!BereidVoor(bron, verloop)) {
    ZetFocus(*eerste_);
    return;
  }
  const std::filesystem::path pad = Hoofd().Ini.TempDir() / soort_.bestand;
  const bool gelukt =
      MaakVerslag({pad}, [&](TekstSchrijver& uit) { return Schrijf(bron, uit, verloop); });
  ZetBezig(false);
  if (gelukt) ToonTekstbestand(pad, soort_.venster, false);
}

}  // namespace lb77
