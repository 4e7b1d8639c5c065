#include "cli/Bediener.h"

#include <algorithm>
#include <stdexcept>

#include "script/Verslag.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

// The one question with another answer: without a settings file a new one is made.
bool IsNieuwIniBestand(std::string_view tekst) {
  return tekst.find("Druk op OK om een nieuw IniBestand te maken") != std::string_view::npos;
}

Antwoord Ontkennend(Knoppen knoppen) {
  switch (knoppen) {
    case Knoppen::OK:
      return Antwoord::OK;
    case Knoppen::JaNee:
      return Antwoord::Nee;
    case Knoppen::OKAnnuleren:
    case Knoppen::JaNeeAnnuleren:
      return Antwoord::Annuleren;
  }
  return Antwoord::Annuleren;
}

}  // namespace

void Bediener::Bij(std::string_view formulier, Handeling handeling) {
  handelingen_.insert_or_assign(std::string(formulier), std::move(handeling));
}

void Bediener::Mislukt(std::string_view reden) {
  meld_(WindowsNaarUtf8(reden));
  status_ = 1;
}

Antwoord Bediener::Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) {
  const Antwoord antwoord = IsNieuwIniBestand(tekst) ? Antwoord::OK : Ontkennend(knoppen);
  if (soort == BerichtSoort::Stop) status_ = 1;
  std::string regel = WindowsNaarUtf8(tekst);
  if (knoppen != Knoppen::OK) regel.append(" -> ").append(Woord(antwoord));
  meld_(regel);
  return antwoord;
}

// The box comes for each text that is converted; once is enough on a terminal.
bool Bediener::BerichtMetVinkje(std::string_view tekst, std::string_view) {
  if (!vinkjeGemeld_) meld_(WindowsNaarUtf8(tekst));
  vinkjeGemeld_ = true;
  return true;
}

std::optional<std::filesystem::path> Bediener::VraagBestand(const BestandsVraag&) {
  return std::nullopt;
}

bool Bediener::DrukAf(const Afdruk&) {
  return false;
}

void Bediener::Ververs(Formulier&) {}

bool Bediener::StopGevraagd(Formulier&) {
  return false;
}

void Bediener::Open(Formulier&) {}

void Bediener::Voer(Formulier& formulier) {
  const auto handeling = handelingen_.find(formulier.Naam());
  if (handeling != handelingen_.end()) handeling->second(formulier);
  if (formulier.Gesloten()) return;
  formulier.VraagSluiten();
  if (!formulier.Gesloten()) throw std::runtime_error(formulier.Naam() + " sluit niet");
}

void Bediener::Dicht(Formulier&) {}

Bediening* Werk::Vind(std::string_view naam) {
  Bediening* const bediening = formulier_.Zoek(naam);
  if (bediening && bediening->Bruikbaar()) return bediening;
  static_cast<void>(Weiger(naam, bediening ? "is niet beschikbaar" : "bestaat niet"));
  return nullptr;
}

// Always False, for the caller to hand on.
bool Werk::Weiger(std::string_view naam, std::string_view reden) {
  bediener_.Mislukt(formulier_.Naam() + "." + std::string(naam) + " " + std::string(reden));
  return false;
}

void Werk::Druk(std::string_view naam) {
  if (formulier_.Gesloten()) return;
  if (Bediening* bediening = Vind(naam)) formulier_.Klik(*bediening);
}

bool Werk::Zet(std::string_view naam, std::string_view waarde) {
  if (formulier_.Gesloten()) return false;
  Bediening* const bediening = Vind(naam);
  if (!bediening) return false;
  if (auto* veld = dynamic_cast<Invoerveld*>(bediening)) return Vul(*veld, waarde);
  if (auto* lijst = dynamic_cast<Lijst*>(bediening)) return ZetLijst(*lijst, waarde);
  if (auto* schakelaar = dynamic_cast<Schakelaar*>(bediening)) {
    return ZetSchakelaar(*schakelaar, waarde);
  }
  return Weiger(naam, "kan niet worden gezet");
}

bool Werk::Vul(Invoerveld& veld, std::string_view waarde) {
  if (!formulier_.GaNaar(veld)) return false;
  if (auto* pad = dynamic_cast<Padvak*>(&veld)) {
    pad->ZetTekst(waarde);
  } else {
    formulier_.Bewerkt(veld, "");
    for (const char teken : waarde) formulier_.Typ(veld, teken);
    // A user would see that the field drops what it does not take.
    if (veld.Tekst().size() != waarde.size()) {
      return Weiger(veld.Naam(), "neemt \"" + std::string(waarde) + "\" niet aan");
    }
  }
  return formulier_.VerlaatVeld() || Weiger(veld.Naam(), "heeft geen geldige waarde");
}

bool Werk::ZetLijst(Lijst& lijst, std::string_view waarde) {
  const auto& rijen = lijst.Rijen();
  const auto rij = std::find(rijen.begin(), rijen.end(), waarde);
  if (rij == rijen.end()) return Weiger(lijst.Naam(), "heeft die keuze niet");
  return formulier_.Kies(lijst, static_cast<int>(rij - rijen.begin()));
}

bool Werk::ZetSchakelaar(Schakelaar& schakelaar, std::string_view waarde) {
  if (waarde != "aan" && waarde != "uit") return Weiger(schakelaar.Naam(), "is aan of uit");
  return schakelaar.Gekozen() == (waarde == "aan") || formulier_.Klik(schakelaar);
}

}  // namespace lb77
