#include "reports/SelectPlts.h"

#include <initializer_list>

namespace lb77 {

SelectPlts::SelectPlts(Hoofdmodule& hoofd) : LijstForm(kSelectPlts, hoofd) {
  Koppel(Plaats.Naam, OKButton, BackButton);
}

void SelectPlts::BijLaden() {
  for (Vinkje* vakje : std::initializer_list<Vinkje*>{&ZoekGeb, &ZoekDoop, &ZoekOv, &ZoekBegr,
                                                      &ZoekOtr, &ZoekWetHuw, &ZoekKerkHuw}) {
    vakje->Zet(true);
  }
}

Uitslag SelectPlts::Schrijf(RecordBron& bron, TekstSchrijver& uit, const Verloop& verloop) {
  const PlaatsKeus keus{Plaats.PlaatsNr(),    ZoekGeb.Gekozen(),    ZoekDoop.Gekozen(),
                        ZoekOv.Gekozen(),     ZoekBegr.Gekozen(),   ZoekOtr.Gekozen(),
                        ZoekWetHuw.Gekozen(), ZoekKerkHuw.Gekozen()};
  return SelecteerPlaatsen(keus, bron, uit, verloop);
}

}  // namespace lb77
