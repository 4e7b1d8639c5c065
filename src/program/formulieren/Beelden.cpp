// The pictures of the family.
#include "pictures/BeeldPrs.h"
#include "pictures/Boombeeld.h"
#include "pictures/Waaier.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

// One person, as each picture tells him.
BeeldPersonen Voorbeeld() {
  BeeldPersoon persoon;
  persoon.nr = kVoorbeeldPersoon;
  persoon.voornamen = "Jan Pieter";
  persoon.achternaam = "de Vries";
  persoon.datums = {"1802-1870"};
  return {persoon};
}

GemaaktFormulier Waaier(Programma& p) {
  return Maak<BeeldForm>(
      kWaaierBeeld, p.Hoofd(), 1,
      [](const BeeldKeuzen& keuzen) {
        return MaakWaaier(Voorbeeld(), {.kleuren = keuzen.kleuren, .titel = "Kwartierstaat"},
                          Helveticamaat());
      },
      BeeldKeuzen{.vorm = 1});
}

template <const BeeldSoort& kSoort>
GemaaktFormulier Boom(Programma& p) {
  return Maak<BeeldForm>(kSoort, p.Hoofd(), 1, [](const BeeldKeuzen& keuzen) {
    return MaakBoom(Voorbeeld(), {.kleuren = keuzen.kleuren, .titel = "Stamboom"}, Helveticamaat());
  });
}

GemaaktFormulier Tijd(Programma& p) {
  return Maak<BeeldForm>(kTijdBeeld, p.Hoofd(), 0, [](const BeeldKeuzen& keuzen) {
    return TekenTijdbalk({{{1800, {12, 9}}, {1850, {20, 4}}}, 23}, keuzen, "Nakomelingen");
  });
}

GemaaktFormulier Tellen(Programma& p) {
  auto tijdbalk = std::make_shared<Tijdbalk>();
  return {tijdbalk, std::make_unique<TijdBereken>(p.Hoofd(), kVoorbeeldPersoon, *tijdbalk)};
}

constexpr FormulierRij kRijen[] = {
    {"WaaierPrs", [](Programma& p) { return Maak<KwartierBeeldPrs>(kWaaierPrs, p.Hoofd()); }},
    {"WaaierBeeld", Waaier},
    {"KwartierPrs", [](Programma& p) { return Maak<KwartierBeeldPrs>(kKwartierPrs, p.Hoofd()); }},
    {"KwartierBeeld", Boom<kKwartierBeeld>},
    {"StamPrs", [](Programma& p) { return Maak<StamBeeldPrs>(p.Hoofd()); }},
    {"StamBeeld", Boom<kStamBeeld>},
    {"TijdPrs", [](Programma& p) { return Maak<TijdBeeldPrs>(p.Hoofd()); }},
    {"TijdBereken", Tellen},
    {"TijdBeeld", Tijd},
};

}  // namespace

std::span<const FormulierRij> Beelden() {
  return kRijen;
}

}  // namespace lb77::formulieren
