#include "exchange/GedcomRelatie.h"

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

namespace rubriek = relatierubriek;
using R = GedcomRelatie;

constexpr std::int16_t kKinderenInRecord = 15;

constexpr auto kHeeftOtrPlaats = HeeftPlaats<&R::otr, rubriek::kOtrPlaats, R>;
constexpr auto kHeeftOtrDatum = HeeftDatum<&R::otr, rubriek::kOtrDatum, R>;
constexpr auto kHeeftHuwPlaats = HeeftPlaats<&R::whuw, rubriek::kWetHuwPlaats, R>;
constexpr auto kHeeftHuwDatum = HeeftDatum<&R::whuw, rubriek::kWetHuwDatum, R>;

bool IsOndertrouw(const R& r) {
  return kHeeftOtrDatum(r) || kHeeftOtrPlaats(r);
}

bool IsOngehuwd(const R& r) {
  return r.ongehuwd;
}

bool IsGehuwd(const R& r) {
  return !r.ongehuwd && (kHeeftHuwDatum(r) || kHeeftHuwPlaats(r));
}

void HuwDatum(const R& r, std::string& regel) {
  regel += GedcomDatumMetCode(r.huwCorr, r.whuw.DatumGetal(), r.khuw.DatumGetal());
}

// A church marriage is told unless its date is the end of the period of the civil one.
template <bool (*kWanneer)(const R&)>
bool Kerkelijk(const R& r) {
  return !IsCode(r.huwCorr, correctie::kTussen) && kWanneer(r);
}

bool IsScheiding(const R& r) {
  return r.scheiding && r.khuw.IsEr();
}

bool IsInzegening(const R& r) {
  return !r.scheiding && r.khuw.IsEr();
}

bool HeeftReligie(const R& r) {
  return !Trim(r.religie).empty() && !r.scheiding;
}

bool HeeftSoort(const R& r) {
  return !Trim(r.soort).empty();
}

// kept: MARC is written for whoever is not married; a divorce stands in the fields of the church
// marriage; the place of a church marriage whose date ends that of the civil one stands below that,
// and a date that has only the code of a remark has no event of its own; places and the kind of
// marriage go out unconverted.
constexpr GedcomRij<R> kRijen[] = {
    {1, "MARB", IsOndertrouw},
    {2, "DATE", kHeeftOtrDatum, Datum<&R::otr>, rubriek::kOtrDatum, 3},
    {2, "PLAC", kHeeftOtrPlaats, Plaats<&R::otr>, rubriek::kOtrPlaats, 3},
    {1, "MARC", IsOngehuwd},
    {1, "MARR", IsGehuwd},
    {2, "DATE", kHeeftHuwDatum, HuwDatum, rubriek::kWetHuwDatum, 3},
    {2, "PLAC", kHeeftHuwPlaats, Plaats<&R::whuw>, rubriek::kWetHuwPlaats, 3},
    {2, "LMAR", HeeftSoort, Kaal<&R::soort>},
    {1, "DIVF", Kerkelijk<IsScheiding>},
    {1, "ORDI", Kerkelijk<IsInzegening>},
    {2, "DATE", Kerkelijk<HeeftDatum<&R::khuw, rubriek::kKHuwDatum>>, Datum<&R::khuw>,
     rubriek::kKHuwDatum, 3},
    {2, "PLAC", HeeftPlaats<&R::khuw, rubriek::kKHuwPlaats>, Plaats<&R::khuw>, rubriek::kKHuwPlaats,
     3},
    {2, "RELI", HeeftReligie, Tekst<&R::religie>},
};

void HaalVervolg(RelatieLB77& relatie, Gesprek& gesprek, R& r) {
  constexpr std::size_t kLaatste = kKinderenInRecord - 1;
  const std::int32_t nr = -std::int32_t{r.kinderen[kLaatste]};
  r.kinderen[kLaatste] = 0;
  if (nr > kMaxRecords || !relatie.Lees(static_cast<std::int16_t>(nr))) {
    gesprek.Fout("Leesfout bij relatierecord " + GetalTekst(nr));
    return;
  }
  for (std::int16_t i = 1; i <= kKinderenInRecord; ++i) {
    r.kinderen[kLaatste + static_cast<std::size_t>(i) - 1] = relatie.KindNr(i);
  }
}

}  // namespace

GedcomRelatie HaalRelatie(const Gegevens& gegevens, PlaatsNamen& plaatsen, Gesprek& gesprek) {
  RelatieLB77& relatie = gegevens.relatie;
  const Gezindten& gezindten = gegevens.schrijfwijze.gezindten;
  GedcomRelatie r;
  r.man = relatie.ManNr();
  r.vrouw = relatie.VrouwNr();
  r.huwCorr = relatie.HuwCorr();
  r.soort = GezindteNaam(relatie.HuwSoort(), gezindten);
  r.religie = GezindteNaam(relatie.Religie(), gezindten);
  r.otr = {relatie.OtrDatum(), plaatsen.Naam(relatie.OtrPlaatsNr())};
  r.whuw = {relatie.WHuwDatum(), plaatsen.Naam(relatie.WetHuwPlaatsNr())};
  r.khuw = {relatie.KHuwDatum(), plaatsen.Naam(relatie.KHuwPlaatsNr())};
  r.scheiding = relatie.KHuwSch();
  r.ongehuwd = !relatie.HuwSwPs().empty();
  for (std::int16_t i = 1; i <= kKinderenInRecord; ++i) {
    r.kinderen[static_cast<std::size_t>(i) - 1] = relatie.KindNr(i);
  }
  if (relatie.KindNr(kKinderenInRecord) < 0) HaalVervolg(relatie, gesprek, r);
  return r;
}

void SchrijfRelatie(const GedcomRelatie& relatie, const ExpSelectie& selectie, ExpUitvoer& uit,
                    GedcomOpmerkingen& opmerkingen) {
  const auto verwijs = [&](std::string_view tag, std::int16_t nr) {
    if (nr > 0 && selectie.SelPersonen.Bevat(nr)) SchrijfVerwijzing(uit, tag, 'I', nr);
  };
  verwijs("HUSB", relatie.man);
  verwijs("WIFE", relatie.vrouw);
  for (const std::int16_t nr : relatie.kinderen) verwijs("CHIL", nr);
  SchrijfRijen<R>(kRijen, relatie, uit, opmerkingen);
}

}  // namespace lb77
