#include "exchange/EenmaalGesprek.h"

#include <utility>

#include "text/Tekens.h"

namespace lb77 {

Antwoord EenmaalGesprek::Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) {
  std::string regel(tekst.substr(0, tekst.find('\n')));
  if (gelijkenis_ == Gelijkenis::ZonderNummers) std::erase_if(regel, IsCijfer);
  const bool nieuw = getoond_.insert(std::move(regel)).second;
  if (knoppen == Knoppen::OK && !nieuw) return Antwoord::OK;
  return echt_.Bericht(soort, knoppen, tekst);
}

bool EenmaalGesprek::BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) {
  return echt_.BerichtMetVinkje(tekst, vinkje);
}

std::optional<std::filesystem::path> EenmaalGesprek::VraagBestand(const BestandsVraag& vraag) {
  return echt_.VraagBestand(vraag);
}

bool EenmaalGesprek::DrukAf(const Afdruk& afdruk) {
  return echt_.DrukAf(afdruk);
}

void EenmaalGesprek::Ververs(Formulier& formulier) {
  echt_.Ververs(formulier);
}

bool EenmaalGesprek::StopGevraagd(Formulier& formulier) {
  return echt_.StopGevraagd(formulier);
}

}  // namespace lb77
