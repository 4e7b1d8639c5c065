#include "contact/GciPlaatsToets.h"

#include <initializer_list>

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kTeVeelPlaatsen =
    "Het maximum van 32767 plaatsen voor de Contactdienst is bereikt";

constexpr std::string_view kJuisteProvincie = "Is dit de juiste provincie voor plaatscode ";
constexpr std::string_view kJuistePlaatsnaam = "Is dit de juiste plaatsnaam voor plaatscode ";

// What there is of it, with commas between.
std::string Lijst(std::initializer_list<std::string_view> delen) {
  std::string uit;
  for (const std::string_view deel : delen) {
    if (deel.empty()) continue;
    if (!uit.empty()) uit += ", ";
    uit += deel;
  }
  return uit;
}

}  // namespace

std::int16_t GciPlaatsToets::Rij(std::int16_t plaatsNr) {
  const auto bekend = bekend_.find(plaatsNr);
  if (bekend != bekend_.end()) return bekend->second;
  const std::int16_t rij = Bepaal(plaatsNr);
  bekend_.emplace(plaatsNr, rij);
  return rij;
}

std::int16_t GciPlaatsToets::Bepaal(std::int16_t plaatsNr) {
  GciPlaats plaats{plaatsNr, plaats_.Naam(plaatsNr), {}, {}, {}};
  if (plaats.eigenNaam.empty()) {  // a record that is gone has nothing to ask about
    overgeslagen_.push_back(GetalTekst(plaatsNr));
    return kWeglaten;
  }
  plaats.eigenCode = plaats_.Prov(plaatsNr);
  plaats.naam = plaats.eigenNaam;
  plaats.gebied = GebiedVan(plaats.eigenCode, tabellen_.provincies, tabellen_.landen);
  std::int16_t rij = Zoek(plaats);
  if (rij == 0) rij = ZoekSynoniem(plaats);
  return rij == 0 ? VraagCorrectie(plaats) : rij;
}

// The row that fits goes before any question.
std::int16_t GciPlaatsToets::Zoek(const GciPlaats& plaats) {
  const GciPlaatsen& tabel = tabellen_.plaatsen;
  const std::vector<std::int16_t>& rijen = tabel.MetNaam(plaats.naam);
  for (const std::int16_t rij : rijen) {
    if (GelijkZonderKast(tabel.Prov(rij), plaats.gebied.prov) &&
        GelijkZonderKast(tabel.Land(rij), plaats.gebied.land)) {
      return rij;
    }
  }
  if (neemEnige_ && rijen.size() == 1 && plaats.eigenCode.empty()) {
    gesprek_.Informeer("De enige van die naam voor plaatscode " + GetalTekst(plaats.nr) + " - " +
                       plaats.naam + "\nGevonden: " + Gevonden(rijen.front()));
    return rijen.front();
  }
  for (const std::int16_t rij : rijen) {
    if (IsJuist(kJuisteProvincie, plaats, Gevonden(rij))) return rij;
  }
  return 0;
}

std::string GciPlaatsToets::Gevonden(std::int16_t rij) const {
  const GciPlaatsen& tabel = tabellen_.plaatsen;
  return Lijst({tabel.Naam(rij), tabel.Prov(rij), tabel.Land(rij)});
}

// A synonym that the user takes is the name from here on.
std::int16_t GciPlaatsToets::ZoekSynoniem(GciPlaats& plaats) {
  const GciSynoniem* synoniem = SynoniemVan(plaats.naam);
  if (!synoniem) return 0;
  const std::string gevonden = Lijst({synoniem->naam, synoniem->prov, synoniem->land});
  if (!IsJuist(kJuistePlaatsnaam, plaats, gevonden)) return 0;
  plaats.naam = synoniem->naam;
  plaats.gebied = {std::string(synoniem->prov), std::string(synoniem->land)};
  return Zoek(plaats);
}

bool GciPlaatsToets::IsJuist(std::string_view vraag, const GciPlaats& plaats,
                             const std::string& gevonden) {
  return gesprek_.Vraag(std::string(vraag) + GetalTekst(plaats.nr) + " - " + plaats.naam +
                        " ?\nGevonden: " + gevonden);
}

std::int16_t GciPlaatsToets::VraagCorrectie(const GciPlaats& plaats) {
  const Antwoord antwoord =
      gesprek_.Bericht(BerichtSoort::Vraag, Knoppen::JaNeeAnnuleren,
                       Lijst({plaats.naam, plaats.gebied.prov, plaats.gebied.land}) +
                           "\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?");
  if (antwoord == Antwoord::Annuleren) return kAfbreken;
  const std::int16_t rij = antwoord == Antwoord::Ja ? corrigeer_(plaats) : std::int16_t{0};
  return rij == 0 ? VraagToch(plaats) : rij;
}

std::int16_t GciPlaatsToets::VraagToch(const GciPlaats& plaats) {
  if (!gesprek_.Vraag("Plaats onbekend: " + plaats.naam + ".\nPlaats toch mee uitvoeren ?")) {
    overgeslagen_.push_back(plaats.naam);
    return kWeglaten;
  }
  const std::int16_t rij =
      tabellen_.plaatsen.VoegToe(plaats.naam, plaats.gebied.prov, plaats.gebied.land);
  if (rij != 0) return rij;
  gesprek_.Fout(kTeVeelPlaatsen);
  return kAfbreken;
}

}  // namespace lb77
