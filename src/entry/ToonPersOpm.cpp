#include "entry/ToonPersOpm.h"

#include <optional>
#include <string>
#include <string_view>

#include "entry/OpmDelen.h"
#include "entry/ToonOpm.h"
#include "text/Datum.h"
#include "text/Getallen.h"
#include "text/Gezindte.h"

namespace lb77 {

namespace {

const RubriekNaam& RubriekVan(int nummer) {
  return kPersoonRubrieken.at(static_cast<std::size_t>(nummer - 1));
}

std::string Datum(std::string_view datum) {
  const bool leeg = datum.find_first_of("0123456789") == std::string_view::npos;
  return leeg ? std::string() : std::string(datum);
}

}  // namespace

std::string RubriekWaarde(Hoofdmodule& hoofd, std::int16_t rubriek) {
  namespace soort = persoonrubriek;
  const PersoonLB77& persoon = hoofd.Persoon;
  switch (rubriek) {
    case soort::kAchternaam:
      return persoon.AchterNaamTrue();
    case soort::kVoornaam:
      return persoon.VoorNaamTrue();
    case soort::kGebPlaats:
      return hoofd.Plaats.Naam2(persoon.GebPlaatsNr());
    case soort::kGebDatum:
      return Datum(persoon.GebDatum10());
    case soort::kDoopPlaats:
      return hoofd.Plaats.Naam2(persoon.DoopPlaatsNr());
    case soort::kDoopDatum:
      return Datum(persoon.DoopDatum10());
    case soort::kReligie:
      return GezindteNaam(persoon.Religie(), hoofd.schrijfwijze.gezindten);
    case soort::kOvlPlaats:
      return hoofd.Plaats.Naam2(persoon.OvlPlaatsNr());
    case soort::kOvlDatum:
      return Datum(persoon.OvlDatum10());
    case soort::kBegrPlaats:
      return hoofd.Plaats.Naam2(persoon.BegrPlaatsNr());
    case soort::kBegrDatum:
      return Datum(persoon.BegrDatum10());
    case soort::kBeroep:
      return persoon.beroep();
    default:
      return {};
  }
}

ToonPersOpm::RubriekRegel::RubriekRegel(Formulier& formulier, int nummer)
    : Rubriek(formulier, Genummerd("Rubriek", nummer), RubriekVan(nummer).opschrift),
      EersteRegel(formulier, Genummerd("EersteRegel", nummer)) {
  EersteRegel.ZetLeesnaam("Eerste regel van " + std::string(RubriekVan(nummer).opschrift));
}

ToonPersOpm::ToonPersOpm(Hoofdmodule& hoofd, std::int16_t persoon)
    : InvoerFormulier("ToonPersOpm", "Toon Opmerkingen Persoon", hoofd), nr_(persoon) {
  ZetHulpOnderwerp("opmerkingen");
  Rubrieken.Elk([this](int nummer, RubriekRegel& regel) {
    regel.Rubriek.BijKlik([this, nummer] { RubriekKlik(RubriekVan(nummer).rubriek); });
  });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(Rubrieken(1).Rubriek);
}

void ToonPersOpm::BijLaden() {
  if (Hoofd().Persoon.AantalRecords() < 2) {
    Hoofd().gesprek.Waarschuw("Er zijn geen Persoonsrecords aanwezig");
    Hoofd().volgers.HuidigPersoonNr = -1;
    Sluit();
    return;
  }
  const std::optional<OpmEigenaar> eigenaar = LeesOpmEigenaar(
      Hoofd().MaakGegevens(), Hoofd().gesprek, MaakOpmVraag(nr_, persoonrubriek::kAlgemeen, {}));
  if (!eigenaar) {
    Sluit();
    return;
  }
  RecordNr.ZetTekst(GetalTekst(nr_));
  Naam.ZetTekst(eigenaar->naam);
  Rubrieken.Elk([&](int nummer, RubriekRegel& regel) {
    regel.EersteRegel.ZetTekst(Hoofd().Opmerking.OpmerkingTekst(
        eigenaar->opmCode, eigenaar->opmRecord, RubriekVan(nummer).rubriek, 1, false));
  });
}

void ToonPersOpm::RubriekKlik(std::int16_t rubriek) {
  std::string waarde;
  if (Hoofd().Persoon.Lees(nr_)) waarde = RubriekWaarde(Hoofd(), rubriek);
  Hoofd().gesprek.Toon<ToonOpm>(Hoofd(), MaakOpmVraag(nr_, rubriek, std::move(waarde)));
  BijLaden();
}

}  // namespace lb77
