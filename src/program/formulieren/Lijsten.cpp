// The lists over whole files: selections and statistics.
#include "program/formulieren/Gebieden.h"
#include "reports/RptFamilies.h"
#include "reports/RptTakken.h"
#include "reports/RptTijdbalk.h"
#include "reports/SelectOpm.h"
#include "reports/SelectPlts.h"
#include "reports/SelectPrs.h"
#include "reports/SelectRel.h"

namespace lb77::formulieren {
namespace {

constexpr FormulierRij kRijen[] = {
    {"SelectPrs", [](Programma& p) { return Maak<SelectPrs>(p.Hoofd()); }},
    {"SelectRel", [](Programma& p) { return Maak<SelectRel>(p.Hoofd()); }},
    {"SelectPlts", [](Programma& p) { return Maak<SelectPlts>(p.Hoofd()); }},
    {"SelectOpm", [](Programma& p) { return Maak<SelectOpm>(p.Hoofd()); }},
    {"RptTakken", [](Programma& p) { return Maak<RptTakken>(p.Hoofd()); }},
    {"RptFamilies", [](Programma& p) { return Maak<RptFamilies>(p.Hoofd()); }},
    {"RptTijdbalk", [](Programma& p) { return Maak<RptTijdbalk>(p.Hoofd()); }},
};

}  // namespace

std::span<const FormulierRij> Lijsten() {
  return kRijen;
}

}  // namespace lb77::formulieren
