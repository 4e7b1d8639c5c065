#include "checks/CorrNamen.h"

#include "entry/Invoer.h"
#include "store/Rubrieken.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kOnbekend = "<onbekend>";
constexpr std::string_view kOnleesbaar = "?????";
constexpr std::int16_t kEersteNr = 2;  // record 1 can be read, but is nobody

// kept: shorter than elsewhere.
constexpr RubriekNaam kEigenNamen[] = {
    {relatierubriek::kOtrDatum, ">> Otr Datum"},
    {relatierubriek::kOtrPlaats, ">> Otr Plaats"},
    {relatierubriek::kWetHuwDatum, ">> Wet Huw Datum"},
    {relatierubriek::kWetHuwPlaats, ">> Wet Huw Plaats"},
    {relatierubriek::kKHuwDatum, ">> Kerk Huw Datum"},
    {relatierubriek::kKHuwPlaats, ">> Kerk Huw Plaats"},
    {relatierubriek::kReligie, ">> Kerk Huw Gezindte"},
};

std::string PersoonNaam(PersoonLB77& persoon, std::int16_t nr) {
  if (nr != 0 && nr < kEersteNr) return std::string(kOnleesbaar);
  std::string voornaam;
  std::string achternaam;
  std::string nrtekst;
  HaalNaam(persoon, nr, voornaam, achternaam, nrtekst);
  if (voornaam == kOnleesbaar && achternaam == kOnleesbaar) return voornaam;
  const std::string naam(Trim(voornaam + " " + achternaam));
  return naam.empty() ? std::string(kOnbekend) : naam;
}

}  // namespace

std::string RecordNaam(const Gegevens& gegevens, BestandSoort bestand, std::int16_t nr) {
  if (nr == 0) return {};
  if (bestand == BestandSoort::Personen) return PersoonNaam(gegevens.persoon, nr);
  if (nr < kEersteNr || !gegevens.relatie.Lees(nr)) return std::string(kOnleesbaar);
  return PersoonNaam(gegevens.persoon, gegevens.relatie.ManNr()) + " en " +
         PersoonNaam(gegevens.persoon, gegevens.relatie.VrouwNr());
}

std::string_view CorrRubriekNaam(std::int16_t rubriek) {
  for (const RubriekNaam& naam : kEigenNamen) {
    if (naam.rubriek == rubriek) return naam.opschrift;
  }
  return RubriekOpschrift(rubriek);
}

}  // namespace lb77
