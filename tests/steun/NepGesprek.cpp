#include "steun/NepGesprek.h"

#include <gtest/gtest.h>

#include <utility>

#include "script/Verslag.h"
#include "steun/SpeelToets.h"
#include "text/Unicode.h"

namespace lb77 {

NepGesprek::~NepGesprek() {
  for (const Antwoord antwoord : antwoorden_) {
    ADD_FAILURE() << "antwoord niet gebruikt: " << Woord(antwoord);
  }
}

std::vector<std::string> NepGesprek::Neem() {
  return std::exchange(regels_, {});
}

// Once for each text: some tests make the same box appear a thousand times.
void NepGesprek::Noteer(std::string_view windows) {
  if (genoteerd_.emplace(windows).second) NoteerGetoond(WindowsNaarUtf8(windows));
}

Antwoord NepGesprek::Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) {
  Noteer(tekst);
  const std::string begin = std::string(Woord(soort)) + " ";
  if (knoppen == Knoppen::OK) {
    regels_.push_back("! " + begin + Aangehaald(tekst));
    return Antwoord::OK;
  }
  Antwoord antwoord = Antwoord::Nee;
  if (antwoorden_.empty()) {
    ADD_FAILURE() << "vraag zonder antwoord: " << Aangehaald(tekst);
  } else {
    antwoord = antwoorden_.front();
    antwoorden_.pop_front();
  }
  regels_.push_back("? " + begin + Woorden(knoppen) + " " + Aangehaald(tekst) + " -> " +
                    std::string(Woord(antwoord)));
  return antwoord;
}

bool NepGesprek::BerichtMetVinkje(std::string_view tekst, std::string_view) {
  Informeer(tekst);
  return false;
}

std::optional<std::filesystem::path> NepGesprek::VraagBestand(const BestandsVraag& vraag) {
  ADD_FAILURE() << "vraag om een bestand: " << vraag.filter;
  return std::nullopt;
}

bool NepGesprek::DrukAf(const Afdruk& afdruk) {
  regels_.push_back("% afdruk " + std::to_string(afdruk.paginas.size()));
  return true;
}

void NepGesprek::Open(Formulier&) {
  ADD_FAILURE() << "een formulier is getoond";
}

}  // namespace lb77
