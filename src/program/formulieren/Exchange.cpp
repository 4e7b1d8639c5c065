// What comes from other programs, and goes to them.
#include "exchange/ExpAscii.h"
#include "exchange/ExpDump.h"
#include "exchange/ExpGedcom.h"
#include "exchange/ExpMaakLyst.h"
#include "exchange/ExpSel.h"
#include "exchange/ImpGedcom.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

GemaaktFormulier Selectie(Programma& p, const ExpSelSoort& soort) {
  auto lijst = std::make_shared<SelectieLijst>();
  return {lijst, std::make_unique<ExpSel>(soort, p.Hoofd(), *lijst)};
}

GemaaktFormulier Lijst(Programma& p) {
  auto selectie = std::make_shared<ExpSelectie>();
  static_cast<void>(selectie->SelPersonen.Voeg(kVoorbeeldPersoon));
  return {selectie, std::make_unique<ExpMaakLyst>(p.Hoofd(), *selectie)};
}

constexpr FormulierRij kRijen[] = {
    {"ExpGedcom", [](Programma& p) { return Maak<ExpGedcom>(p.Hoofd()); }},
    {"ExpSelPers", [](Programma& p) { return Selectie(p, kExpSelPers); }},
    {"ExpSelRel", [](Programma& p) { return Selectie(p, kExpSelRel); }},
    {"ExpMaakLyst", Lijst},
    {"ExpAscii", [](Programma& p) { return Maak<ExpAscii>(p.Hoofd()); }},
    {"ExpDumpPers", [](Programma& p) { return Maak<ExpDump>(kExpDumpPers, p.Hoofd()); }},
    {"ExpDumpRel", [](Programma& p) { return Maak<ExpDump>(kExpDumpRel, p.Hoofd()); }},
    {"ExpDumpPlts", [](Programma& p) { return Maak<ExpDump>(kExpDumpPlts, p.Hoofd()); }},
    {"ExpDumpOpm", [](Programma& p) { return Maak<ExpDump>(kExpDumpOpm, p.Hoofd()); }},
    {"ImpGedcom", [](Programma& p) { return Maak<ImpGedcom>(p.Hoofd()); }},
};

}  // namespace

std::span<const FormulierRij> Exchange() {
  return kRijen;
}

}  // namespace lb77::formulieren
