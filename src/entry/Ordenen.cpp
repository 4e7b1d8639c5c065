#include "entry/Ordenen.h"

#include "forms/Gesprek.h"

namespace lb77 {

namespace {

constexpr std::string_view kMislukt = "Het sorteren is mislukt.";
constexpr std::string_view kNietGelezen = "Het sorteren is mislukt";

void OrdenOpDatum(Gesprek& gesprek, const OrdenTaak& taak) {
  if (!taak.lees()) return gesprek.Waarschuw(kNietGelezen);
  Verdicht(taak.plaatsen);
  if (!taak.sorteer(AantalBezet(taak.plaatsen)) || !taak.schrijf()) gesprek.Waarschuw(kMislukt);
}

void OrdenMetDeHand(Gesprek& gesprek, const OrdenTaak& taak) {
  const auto wie = taak.vraagWie();
  if (!wie || *wie <= 0) return;
  if (!taak.lees()) return gesprek.Waarschuw(kNietGelezen);
  Verdicht(taak.plaatsen);
  const std::int16_t van = PlaatsVan(taak.plaatsen, *wie);
  if (van == 0) return gesprek.Waarschuw(taak.nietErin);
  const std::int16_t naar = taak.vraagPlaats();
  if (naar < 1) return;
  Verzet(taak.plaatsen, van, naar);
  if (!taak.schrijf()) gesprek.Waarschuw(kMislukt);
}

}  // namespace

void Orden(Gesprek& gesprek, const OrdenTaak& taak) {
  if (gesprek.Vraag("Moet de volgorde Automatisch bepaald worden ?")) {
    OrdenOpDatum(gesprek, taak);
  } else {
    OrdenMetDeHand(gesprek, taak);
  }
}

}  // namespace lb77
