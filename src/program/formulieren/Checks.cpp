// The checks of the files, and what they find.
#include <memory>
#include <utility>

#include "checks/BevindingLijst.h"
#include "checks/Bevindingen.h"
#include "checks/ControleForm.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

// What the list of findings refers to: two lines on the sample person.
struct VoorbeeldControle {
  explicit VoorbeeldControle(Hoofdmodule& hoofd)
      : bron(hoofd.MaakOpslag()), regels(kControlePrs.maak(bron, {})) {}

  static Bevinding Maak(BevindingSoort soort, std::string_view tekst) {
    const RecordPlek plek{BestandSoort::Personen, kVoorbeeldPersoon};
    return {plek, plek, soort, std::string(tekst)};
  }

  RecordBron bron;
  std::unique_ptr<Controleur> regels;
  BevindingLijst lijst{
      {Maak(BevindingSoort::NietBijOuders, "Persoon 2: Kind komt niet voor bij ouders"),
       Maak(BevindingSoort::GeboorteNaDoop, "Persoon 2: Geboorte is na de doop")}};
};

GemaaktFormulier MaakBevindingen(Programma& p) {
  auto controle = std::make_shared<VoorbeeldControle>(p.Hoofd());
  return {controle, std::make_unique<Bevindingen>(p.Hoofd(), *controle->regels, controle->lijst)};
}

constexpr FormulierRij kRijen[] = {
    {"ControlePrs", [](Programma& p) { return Maak<ControleForm>(kControlePrs, p.Hoofd()); }},
    {"ControleRel", [](Programma& p) { return Maak<ControleForm>(kControleRel, p.Hoofd()); }},
    {"ControlePlts", [](Programma& p) { return Maak<ControleForm>(kControlePlts, p.Hoofd()); }},
    {"ControleOpm", [](Programma& p) { return Maak<ControleForm>(kControleOpm, p.Hoofd()); }},
    {"Bevindingen", MaakBevindingen},
};

}  // namespace

std::span<const FormulierRij> Checks() {
  return kRijen;
}

}  // namespace lb77::formulieren
