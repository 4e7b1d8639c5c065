#include "exchange/Ged551Velden.h"

#include <algorithm>

#include "exchange/EigenPaden.h"
#include "exchange/Ged551Plaats.h"
#include "exchange/GedGezindte.h"
#include "store/PlaatsVelden.h"
#include "text/Getallen.h"
#include "text/Gezindte.h"
#include "text/Tekens.h"

namespace lb77 {

Ged551Velden::Ged551Velden(Gegevens delen, Ged551Regels& uit, Ged551Opmerkingen& opmerkingen,
                           Ged551Gemis& telling)
    : gegevens(delen),
      regels(uit),
      gemis(telling),
      bron_(opmerkingen),
      rubrieken_(AlleOpmRubrieken()) {}

void Ged551Velden::Begin(std::string_view record, std::int16_t nr, std::int16_t opmRecord) {
  record_ = pad_ = record;
  opmerkingen_ = bron_.Lees({record == "INDI", nr}, opmRecord);
}

void Ged551Velden::Veld(int level, std::string_view tag, std::string_view waarde) {
  if (Ged551Regels::HeeftTekst(waarde)) regels.Regel(level, tag, waarde);
}

bool Ged551Velden::Heeft(std::int16_t rubriek) const {
  return std::ranges::any_of(opmerkingen_, [&](const Ged551Opmerking& deze) {
    return deze.rubriek == rubriek && !deze.geschreven;
  });
}

bool Ged551Velden::HeeftInhoud(const Ged551Gebeurtenis& deze) const {
  return !deze.datum.IsLeeg() || !deze.corr.empty() || deze.plaats != 0 ||
         Heeft(deze.rubriekDatum) || Heeft(deze.rubriekPlaats);
}

void Ged551Velden::Gebeurtenis(const Ged551Gebeurtenis& deze, const std::function<void()>& meer) {
  pad_ = record_ + "-" + std::string(deze.als.empty() ? deze.tag : deze.als);
  regels.Regel(1, deze.tag);
  Veld(2, eigen::kAls, deze.als);
  if (meer) meer();
  Datum(deze);
  if (Plaats(deze.plaats)) Opmerkingen(3, deze.rubriekPlaats, pad_ + "-PLAC");
  Opmerkingen(2, deze.rubriekPlaats, pad_);
  Opmerkingen(2, deze.rubriekDatum, pad_);
}

void Ged551Velden::Datum(const Ged551Gebeurtenis& deze) {
  const Ged551DatumRegels datum = Ged551Datum(deze.datum, deze.tot, deze.corr);
  gemis.datums += datum.verlies;
  Veld(2, eigen::kCorr, datum.corr);
  Veld(2, eigen::kDatum, datum.rauw);
  Veld(2, eigen::kTot, datum.rauwTot);
  Veld(2, "DATE", datum.waarde);
}

bool Ged551Velden::Plaats(std::int16_t plaatsNr) {
  if (plaatsNr == 0) return false;
  const std::int16_t nr = PlaatsRecordNr(plaatsNr);
  if (!gegevens.plaats.Lees(nr)) {
    ++gemis.plaatsen;
    return false;
  }
  const std::string naam = gegevens.plaats.Waarde(plaatsveld::Naam);
  const std::string prov = gegevens.plaats.Waarde(plaatsveld::Prov);
  regels.Verwijzing(2, eigen::kPlaats, 'P', nr);
  Veld(3, eigen::kZeker, PlaatsZekerheid(plaatsNr));
  const bool metNaam = Ged551Regels::HeeftTekst(naam);
  if (metNaam) regels.Regel(2, "PLAC", Ged551Plaats(naam, prov));
  return metNaam;
}

std::string Ged551Velden::GezindteNaamVan(std::string_view code) const {
  return GezindteNaam(code, gegevens.schrijfwijze.gezindten);
}

bool Ged551Velden::Gezindte(int level, std::string_view tag, std::string_view code) {
  if (code.empty()) return false;
  const std::string naam = GezindteNaamVan(code);
  if (naam != code || Trim(GedGezindte(naam, gegevens.schrijfwijze.gezindten)) != code) {
    regels.Regel(level, eigen::kGezindte, code);
  }
  Veld(level, tag, naam);
  return Ged551Regels::HeeftTekst(naam);
}

void Ged551Velden::Opmerkingen(int level, std::int16_t rubriek, std::string_view pad) {
  for (Ged551Opmerking& deze : opmerkingen_) {
    if (deze.rubriek == rubriek && !deze.geschreven) Opmerking(level, deze, pad);
  }
}

void Ged551Velden::RestOpmerkingen() {
  for (Ged551Opmerking& deze : opmerkingen_) {
    if (!deze.geschreven) Opmerking(1, deze, record_);
  }
}

void Ged551Velden::Opmerking(int level, Ged551Opmerking& deze, std::string_view pad) {
  deze.geschreven = true;
  regels.Tekst(level, "NOTE", deze.regels);
  const OpmRubriek* rij = rubrieken_.Zoek(pad);
  const std::int16_t vanzelf = rij != nullptr ? rij->rubriek : AlgemeneRubriek(pad);
  if (vanzelf != deze.rubriek) regels.Regel(level + 1, eigen::kRubriek, GetalTekst(deze.rubriek));
  regels.Regel(level + 1, eigen::kProg, GetalTekst(deze.prog));
}

}  // namespace lb77
