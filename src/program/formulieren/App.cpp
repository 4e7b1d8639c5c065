// The file sets, the settings and the program itself.
#include "app/Geschiedenis.h"
#include "app/InWelkeSet.h"
#include "app/IniFunctie.h"
#include "app/IniGebruiker.h"
#include "app/IniGezindte.h"
#include "app/IniSysteem.h"
#include "app/IniVoorkeur.h"
#include "app/IniVoorvoeg.h"
#include "app/KopiePlaats.h"
#include "app/KopieTerugzetten.h"
#include "app/NieuweSet.h"
#include "app/OpenSetForm.h"
#include "app/OudeSetForm.h"
#include "app/OverLB77Form.h"
#include "app/VerwijderSetForm.h"
#include "app/Welkom.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

constexpr FormulierRij kRijen[] = {
    {"Welkom", [](Programma& p) { return Maak<Welkom>(p.Hoofd()); }},
    {"OudeSetForm", [](Programma& p) { return Maak<OudeSetForm>(p.Hoofd(), p.Menu()); }},
    {"InWelkeSet",
     [](Programma& p) { return Maak<InWelkeSet>(p.Hoofd(), p.Menu(), "oranje-nassau.ged"); }},
    {"NieuweSet", [](Programma& p) { return Maak<NieuweSet>(p.Hoofd(), p.Menu()); }},
    {"OpenSetForm", [](Programma& p) { return Maak<OpenSetForm>(p.Hoofd(), p.Menu()); }},
    {"VerwijderSetForm", [](Programma& p) { return Maak<VerwijderSetForm>(p.Hoofd(), p.Menu()); }},
    {"IniGebruiker", [](Programma& p) { return Maak<IniGebruiker>(p.Hoofd()); }},
    {"IniGezindte", [](Programma& p) { return Maak<IniGezindte>(p.Hoofd()); }},
    {"IniVoorvoeg", [](Programma& p) { return Maak<IniVoorvoeg>(p.Hoofd()); }},
    {"IniVoorkeur", [](Programma& p) { return Maak<IniVoorkeur>(p.Hoofd()); }},
    {"IniFunctie", [](Programma& p) { return Maak<IniFunctie>(p.Hoofd()); }},
    {"IniSysteem", [](Programma& p) { return Maak<IniSysteem>(p.Hoofd()); }},
    {"Geschiedenis", [](Programma& p) { return Maak<Geschiedenis>(p.Hoofd()); }},
    {"KopiePlaats", [](Programma& p) { return Maak<KopiePlaats>(p.Hoofd()); }},
    {"KopieTerugzetten", [](Programma& p) { return Maak<KopieTerugzetten>(p.Hoofd()); }},
    {"OverLB77Form", [](Programma&) { return Maak<OverLB77Form>(); }},
};

}  // namespace

std::span<const FormulierRij> App() {
  return kRijen;
}

}  // namespace lb77::formulieren
