// What comes from other programs, and goes to them.
#include "exchange/ImpGedcom.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

constexpr FormulierRij kRijen[] = {
    {"ImpGedcom", [](Programma& p) { return Maak<ImpGedcom>(p.Hoofd()); }},
};

}  // namespace

std::span<const FormulierRij> Exchange() {
  return kRijen;
}

}  // namespace lb77::formulieren
