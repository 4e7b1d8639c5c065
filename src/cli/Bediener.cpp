#include "cli/Bediener.h"

#include <algorithm>
#include <stdexcept>

#include "script/Verslag.h"
#include "text/Unicode.h"

namespace lb77 {

void Bediener::Bij(std::string_view formulier, Handeling handeling) {
  handelingen_.insert_or_assign(std::string(formulier), std::move(handeling));
}

void Bediener::HoudKlaar(std::string_view formulier, Antwoord antwoord) {
  klaar_[std::string(formulier)].push_back(antwoord);
}

void Bediener::HoudSteeds(std::string_view formulier, Antwoord antwoord) {
  steeds_.insert_or_assign(std::string(formulier), antwoord);
}

void Bediener::Mislukt(std::string_view reden) {
  MisluktUtf8(WindowsNaarUtf8(reden));
}

void Bediener::MisluktUtf8(std::string_view reden) {
  meld_(reden);
  status_ = 1;
}

// The last button of a box is the one that does nothing.
Antwoord Bediener::Kies(Knoppen knoppen) {
  const std::vector<Antwoord> keuzen = Keuzen(knoppen);
  const auto biedt = [&](Antwoord antwoord) {
    return std::ranges::find(keuzen, antwoord) != keuzen.end();
  };
  const std::string_view bovenop = open_.empty() ? std::string_view() : open_.back();
  const auto steeds = steeds_.find(bovenop);
  Antwoord zonder = lieverNee_ && biedt(Antwoord::Nee) ? Antwoord::Nee : keuzen.back();
  if (steeds != steeds_.end() && biedt(steeds->second)) zonder = steeds->second;
  const auto klaar = klaar_.find(bovenop);
  if (klaar == klaar_.end()) return zonder;
  const auto eerste = std::ranges::find_first_of(klaar->second, keuzen);
  if (eerste == klaar->second.end()) return zonder;
  const Antwoord antwoord = *eerste;
  klaar->second.erase(eerste);
  return antwoord;
}

Antwoord Bediener::Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) {
  if (soort == BerichtSoort::Stop) status_ = 1;
  std::string regel = WindowsNaarUtf8(tekst);
  if (knoppen == Knoppen::OK) {
    meld_(regel);
    return Antwoord::OK;
  }
  const Antwoord antwoord = Kies(knoppen);
  meld_(regel.append(" -> ").append(Woord(antwoord)));
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

bool Bediener::DrukAf(const Afdruk& afdruk) {
  if (!neem_) return false;
  neem_(afdruk);
  return true;
}

void Bediener::Ververs(Formulier&) {}

bool Bediener::StopGevraagd(Formulier&) {
  return false;
}

void Bediener::Open(Formulier& formulier) {
  open_.push_back(formulier.Naam());
}

void Bediener::Voer(Formulier& formulier) {
  const auto handeling = handelingen_.find(formulier.Naam());
  if (handeling != handelingen_.end()) handeling->second(formulier);
  if (formulier.Gesloten()) return;
  formulier.VraagSluiten();
  if (!formulier.Gesloten()) throw std::runtime_error(formulier.Naam() + " sluit niet");
}

void Bediener::Dicht(Formulier&) {
  if (!open_.empty()) open_.pop_back();
}

}  // namespace lb77
