#include "exchange/Ged551Mee.h"

#include "store/Hoofdrecords.h"

namespace lb77 {

namespace {

void VoegPlaats(const Gegevens& gegevens, Ged551Mee& mee, std::int16_t plaatsNr) {
  const std::int16_t nr = PlaatsRecordNr(plaatsNr);
  if (!mee.plaatsen.Bevat(nr) && gegevens.plaats.Lees(nr)) mee.plaatsen.Voeg(nr);
}

void VerkenPersoon(const Gegevens& gegevens, Ged551Mee& mee, std::int16_t nr) {
  PersoonLB77& persoon = gegevens.persoon;
  if (!persoon.Lees(nr) || persoon.IsVolgRecord()) return;
  mee.personen.Voeg(nr);
  for (const std::int16_t plaats : {persoon.GebPlaatsNr(), persoon.DoopPlaatsNr(),
                                    persoon.OvlPlaatsNr(), persoon.BegrPlaatsNr()}) {
    VoegPlaats(gegevens, mee, plaats);
  }
}

void VerkenRelatie(const Gegevens& gegevens, Ged551Mee& mee, std::int16_t nr) {
  RelatieLB77& relatie = gegevens.relatie;
  if (!relatie.Lees(nr) || relatie.IsVolgRecord()) return;
  mee.relaties.Voeg(nr);
  for (const std::int16_t plaats :
       {relatie.OtrPlaatsNr(), relatie.WetHuwPlaatsNr(), relatie.KHuwPlaatsNr()}) {
    VoegPlaats(gegevens, mee, plaats);
  }
}

// Do all records of the set go along?
bool IsAlles(const Gegevens& gegevens, const Ged551Mee& mee) {
  PersoonLB77& persoon = gegevens.persoon;
  RelatieLB77& relatie = gegevens.relatie;
  return mee.personen.Aantal() == AantalHoofdrecords(persoon, persoon.AantalRecords()) &&
         mee.relaties.Aantal() == AantalHoofdrecords(relatie, relatie.AantalRecords());
}

}  // namespace

Ged551Mee Verken(const Gegevens& gegevens, const ExpSelectie& selectie) {
  Ged551Mee mee;
  for (const std::int16_t nr : selectie.SelPersonen.Nummers()) VerkenPersoon(gegevens, mee, nr);
  for (const std::int16_t nr : selectie.SelRelaties.Nummers()) VerkenRelatie(gegevens, mee, nr);
  if (!IsAlles(gegevens, mee)) return mee;
  const std::int16_t aantal = gegevens.plaats.AantalRecords();
  for (std::int32_t nr = 2; nr <= aantal; ++nr) {
    VoegPlaats(gegevens, mee, static_cast<std::int16_t>(nr));
  }
  return mee;
}

}  // namespace lb77
