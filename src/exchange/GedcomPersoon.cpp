#include "exchange/GedcomPersoon.h"

#include <cstddef>
#include <string_view>

#include "exchange/GedcomDatum.h"
#include "store/Codes.h"
#include "store/Rubrieken.h"
#include "text/Getallen.h"
#include "text/Gezindte.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

namespace rubriek = persoonrubriek;
using P = GedcomPersoon;

void Naam(const P& p, std::string& regel) {
  regel.append(TrimLinks(GedcomTekst(p.voornaam) + " ")).append("/");
  regel.append(GedcomTekst(p.achternaam)).append("/");
}

bool HeeftNaam(const P& p) {
  return !p.voornaam.empty() || !p.achternaam.empty();
}

// kept: the prefix is not converted.
void Achternaam(const P& p, std::string& regel) {
  regel.append(TrimLinks(p.voorvoegsel + " ")).append(GedcomTekst(p.bareNaam));
}

constexpr auto kHeeftAchternaam = HeeftTekstOf<&P::bareNaam, rubriek::kAchternaam, P>;
constexpr auto kHeeftReligie = HeeftTekstOf<&P::religie, rubriek::kReligie, P>;
constexpr auto kHeeftDoopDatum = HeeftDatum<&P::doop, rubriek::kDoopDatum, P>;

bool HeeftVoorvoegsel(const P& p) {
  return kHeeftAchternaam(p) && !p.voorvoegsel.empty();
}

template <char kGeslacht>
bool Is(const P& p) {
  return IsCode(p.geslacht, kGeslacht);
}

void GebDatum(const P& p, std::string& regel) {
  regel += GedcomDatumMetCode(p.gebCorr, p.geb.DatumGetal(), p.doop.DatumGetal());
}

void OvlDatum(const P& p, std::string& regel) {
  regel += GedcomDatumMetCode(p.ovlCorr, p.ovl.DatumGetal(), p.begr.DatumGetal());
}

// A baptism is told unless its date is the end of the period of the birth, a burial likewise.
template <bool (*kWanneer)(const P&)>
bool Gedoopt(const P& p) {
  return !IsCode(p.gebCorr, correctie::kTussen) && kWanneer(p);
}

template <bool (*kWanneer)(const P&)>
bool Begraven(const P& p) {
  return !IsCode(p.ovlCorr, correctie::kTussen) && kWanneer(p);
}

bool IsReligieAlleen(const P& p) {
  return kHeeftReligie(p) && !kHeeftDoopDatum(p);
}

bool IsCrematie(const P& p) {
  return p.crematie && p.begr.IsEr();
}

bool IsBegrafenis(const P& p) {
  return !p.crematie && p.begr.IsEr();
}

void Man(const P&, std::string& regel) {
  regel += "M";
}
void Vrouw(const P&, std::string& regel) {
  regel += "F";
}

bool Altijd(const P&) {
  return true;
}

// kept: a date that has only a remark comes as "0000", also without its event before it; a baptism
// place and a religion without a date make two baptisms; religion stands twice; places go out
// unconverted; the place of a burial whose date ends that of the death stands below the death.
constexpr GedcomRij<P> kRijen[] = {
    {1, "NAME", HeeftNaam, Naam},
    {2, "GIVN", HeeftTekstOf<&P::voornaam, rubriek::kVoornaam>, Tekst<&P::voornaam>,
     rubriek::kVoornaam, 3},
    {2, "SURN", kHeeftAchternaam, Achternaam, rubriek::kAchternaam, 3},
    {2, "SPFX", HeeftVoorvoegsel, Kaal<&P::voorvoegsel>},
    {1, "SEX", Is<geslacht::kMan>, Man},
    {1, "SEX", Is<geslacht::kVrouw>, Vrouw},
    {0, "", Altijd, nullptr, rubriek::kAlgemeen, 1},
    {1, "BIRT", IsEr<&P::geb>},
    {2, "DATE", HeeftDatum<&P::geb, rubriek::kGebDatum>, GebDatum, rubriek::kGebDatum, 3},
    {2, "PLAC", HeeftPlaats<&P::geb, rubriek::kGebPlaats>, Plaats<&P::geb>, rubriek::kGebPlaats, 3},
    {1, "BAPM", Gedoopt<IsEr<&P::doop>>},
    {2, "DATE", Gedoopt<kHeeftDoopDatum>, Datum<&P::doop>, rubriek::kDoopDatum, 3},
    {2, "PLAC", Gedoopt<HeeftPlaats<&P::doop, rubriek::kDoopPlaats>>, Plaats<&P::doop>,
     rubriek::kDoopPlaats, 3},
    {1, "BAPM", Gedoopt<IsReligieAlleen>},
    {2, "RELI", Gedoopt<kHeeftReligie>, Tekst<&P::religie>, rubriek::kReligie, 3},
    {1, "RELI", kHeeftReligie, Tekst<&P::religie>, rubriek::kReligie, 2},
    {1, "DEAT", IsEr<&P::ovl>},
    {2, "DATE", HeeftDatum<&P::ovl, rubriek::kOvlDatum>, OvlDatum, rubriek::kOvlDatum, 3},
    {2, "PLAC", HeeftPlaats<&P::ovl, rubriek::kOvlPlaats>, Plaats<&P::ovl>, rubriek::kOvlPlaats, 3},
    {1, "CREM", Begraven<IsCrematie>},
    {1, "BURI", Begraven<IsBegrafenis>},
    {2, "DATE", Begraven<HeeftDatum<&P::begr, rubriek::kBegrDatum>>, Datum<&P::begr>,
     rubriek::kBegrDatum, 3},
    {2, "PLAC", HeeftPlaats<&P::begr, rubriek::kBegrPlaats>, Plaats<&P::begr>, rubriek::kBegrPlaats,
     3},
    {1, "OCCU", HeeftTekstOf<&P::beroep, rubriek::kBeroep>, Tekst<&P::beroep>, rubriek::kBeroep, 2},
};

// The surname and its prefix, from the form in which names are sorted: "Berg, van den".
void SplitsNaam(const std::string& sorteernaam, P& p) {
  const std::size_t komma = sorteernaam.find(',');
  p.bareNaam = komma == std::string::npos ? p.achternaam : sorteernaam.substr(0, komma);
  if (komma == std::string::npos || komma + 2 > sorteernaam.size()) return;
  p.voorvoegsel = TrimRechts(std::string_view(sorteernaam).substr(komma + 2));
}

void HaalVervolg(PersoonLB77& persoon, Gesprek& gesprek, P& p) {
  const std::int32_t nr = -std::int32_t{p.relaties[2]};
  p.relaties[2] = 0;
  if (nr > kMaxRecords || !persoon.Lees(static_cast<std::int16_t>(nr))) {
    gesprek.Fout("Leesfout bij persoonsrecord " + GetalTekst(nr));
    return;
  }
  p.relaties[2] = persoon.relatie1();
  p.relaties[3] = persoon.relatie2();
  p.relaties[4] = persoon.relatie3();
}

}  // namespace

GedcomPersoon HaalPersoon(const Gegevens& gegevens, PlaatsNamen& plaatsen, Gesprek& gesprek) {
  PersoonLB77& persoon = gegevens.persoon;
  GedcomPersoon p;
  p.geslacht = persoon.Geslacht();
  p.voornaam = persoon.VoorNaamTrue();
  p.achternaam = persoon.AchterNaamTrue();
  // A name of one word sorts as it is.
  const bool heelWoord = p.achternaam.find(' ') == std::string::npos;
  SplitsNaam(heelWoord ? p.achternaam : persoon.AchterNaamVVC(), p);
  p.beroep = persoon.beroep();
  p.religie = GezindteNaam(persoon.Religie(), gegevens.schrijfwijze.gezindten);
  p.gebCorr = persoon.GebCorr();
  p.ovlCorr = persoon.OvlCorr();
  p.geb = {persoon.GebDatum(), plaatsen.Naam(persoon.GebPlaatsNr())};
  p.doop = {persoon.DoopDatum(), plaatsen.Naam(persoon.DoopPlaatsNr())};
  p.ovl = {persoon.OvlDatum(), plaatsen.Naam(persoon.OvlPlaatsNr())};
  p.begr = {persoon.BegrDatum(), plaatsen.Naam(persoon.BegrPlaatsNr())};
  p.crematie = persoon.BegrCrem();
  p.ouders = persoon.RelNrOuders();
  p.relaties = {persoon.relatie1(), persoon.relatie2(), persoon.relatie3()};
  p.opmRecord = persoon.OpmRecord();
  p.opmCode = persoon.OpmCode();
  if (p.relaties[2] < 0) HaalVervolg(persoon, gesprek, p);
  return p;
}

void SchrijfPersoon(const GedcomPersoon& persoon, const ExpSelectie& selectie, ExpUitvoer& uit,
                    GedcomOpmerkingen& opmerkingen) {
  SchrijfRijen<P>(kRijen, persoon, uit, opmerkingen);
  if (IsCode(persoon.gebCorr, correctie::kTussen)) {
    opmerkingen.SlaOver(rubriek::kDoopDatum);
    opmerkingen.SlaOver(rubriek::kDoopPlaats);
  }
  if (IsCode(persoon.ovlCorr, correctie::kTussen)) opmerkingen.SlaOver(rubriek::kBegrDatum);
  const auto verwijs = [&](std::string_view tag, std::int16_t nr) {
    if (nr > 0 && selectie.SelRelaties.Bevat(nr)) SchrijfVerwijzing(uit, tag, 'F', nr);
  };
  verwijs("FAMC", persoon.ouders);
  for (const std::int16_t nr : persoon.relaties) verwijs("FAMS", nr);
}

}  // namespace lb77
