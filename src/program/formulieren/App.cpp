// The file sets, the settings and the program itself.
#include "app/IniGebruiker.h"
#include "app/NieuweSet.h"
#include "app/OpenSetForm.h"
#include "app/OverLB77Form.h"
#include "app/VerwijderSetForm.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

constexpr FormulierRij kRijen[] = {
    {"NieuweSet", [](Programma& p) { return Maak<NieuweSet>(p.Hoofd(), p.Menu()); }},
    {"OpenSetForm", [](Programma& p) { return Maak<OpenSetForm>(p.Hoofd(), p.Menu()); }},
    {"VerwijderSetForm", [](Programma& p) { return Maak<VerwijderSetForm>(p.Hoofd(), p.Menu()); }},
    {"IniGebruiker", [](Programma& p) { return Maak<IniGebruiker>(p.Hoofd()); }},
    {"OverLB77Form", [](Programma&) { return Maak<OverLB77Form>(); }},
};

}  // namespace

std::span<const FormulierRij> App() {
  return kRijen;
}

}  // namespace lb77::formulieren
