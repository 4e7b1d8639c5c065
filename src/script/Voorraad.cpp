#include "script/Voorraad.h"

#include "script/Verslag.h"
#include "text/Getallen.h"

namespace lb77 {

void Voorraad::ZetKlaar(const Instructie& instructie) {
  if (instructie.soort == InstructieSoort::Bestand) {
    bestanden_.push_back({instructie.argument, instructie.regel});
  } else if (instructie.soort == InstructieSoort::Onderbreek) {
    stops_.push_back({instructie.aantal, instructie.regel});
  } else {
    for (const Antwoord antwoord : instructie.antwoorden) {
      antwoorden_.push_back({antwoord, instructie.regel});
    }
  }
}

std::optional<Antwoord> Voorraad::NeemAntwoord() {
  if (antwoorden_.empty()) return std::nullopt;
  const Antwoord antwoord = antwoorden_.front().waarde;
  antwoorden_.pop_front();
  return antwoord;
}

std::optional<std::string> Voorraad::NeemBestand() {
  if (bestanden_.empty()) return std::nullopt;
  std::string pad = std::move(bestanden_.front().waarde);
  bestanden_.pop_front();
  return pad;
}

bool Voorraad::TelStopTest() {
  if (stops_.empty()) return false;
  if (--stops_.front().waarde > 0) return false;
  stops_.pop_front();
  return true;
}

std::vector<std::string> Voorraad::Ongebruikt() const {
  std::vector<std::string> uit;
  for (const auto& [antwoord, regel] : antwoorden_) {
    uit.push_back(OpRegel(regel, "antwoord " + std::string(Woord(antwoord))));
  }
  for (const auto& [pad, regel] : bestanden_) {
    uit.push_back(OpRegel(regel, "bestand " + AangehaaldUtf8(pad)));
  }
  for (const auto& [aantal, regel] : stops_) {
    uit.push_back(OpRegel(regel, "onderbreek, nog " + GetalTekst(aantal) + " keer te gaan"));
  }
  return uit;
}

}  // namespace lb77
