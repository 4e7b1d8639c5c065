#include "entry/Ordenen.h"

#include "forms/Gesprek.h"

namespace lb77 {

namespace {

constexpr std::string_view kMislukt = "Het sorteren is mislukt.";
constexpr std::string_view kNietGelezen = "Het sorteren is mislukt";

// Without its record there is nothing to sort; the card tells, when it shows itself again.
bool OrdenOpDatum(Gesprek& gesprek, const OrdenTaak& taak) {
  const Lijststaat staat = taak.lees();
  if (staat == Lijststaat::Geen) return false;
  Verdicht(taak.plaatsen);
  const bool gelukt =
      staat == Lijststaat::Heel && taak.sorteer(AantalBezet(taak.plaatsen)) && taak.schrijf();
  if (!gelukt) gesprek.Waarschuw(kMislukt);
  return true;
}

void OrdenMetDeHand(Gesprek& gesprek, const OrdenTaak& taak) {
  const auto wie = taak.vraagWie();
  if (!wie || *wie <= 0) return;
  if (taak.lees() != Lijststaat::Heel) return gesprek.Waarschuw(kNietGelezen);
  Verdicht(taak.plaatsen);
  const std::int16_t van = PlaatsVan(taak.plaatsen, *wie);
  if (van == 0) return gesprek.Waarschuw(taak.nietErin);
  const std::int16_t naar = taak.vraagPlaats();
  if (naar < 1) return;
  Verzet(taak.plaatsen, van, naar);
  if (!taak.schrijf()) gesprek.Waarschuw(kMislukt);
}

}  // namespace

Lijststaat StaatVan(const TabUitslag& uitslag) {
  if (uitslag.heel) return Lijststaat::Heel;
  return uitslag.aantal > 0 ? Lijststaat::NietHeel : Lijststaat::Geen;
}

bool Orden(Gesprek& gesprek, const OrdenTaak& taak) {
  if (gesprek.Vraag("Moet de volgorde Automatisch bepaald worden ?")) {
    return OrdenOpDatum(gesprek, taak);
  }
  OrdenMetDeHand(gesprek, taak);
  return true;
}

}  // namespace lb77
