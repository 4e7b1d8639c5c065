// The search for a person, and what entry asks on the way.
#include <memory>

#include "entry/OKPersoon.h"
#include "entry/PersInfoForm.h"
#include "entry/VraagFilter.h"
#include "entry/VraagProv.h"
#include "entry/VraagRecordNr.h"
#include "entry/ZoekPrs.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

constexpr FormulierRij kRijen[] = {
    {"ZoekPrs", [](Programma& p) { return Maak<ZoekPrs>(OpVoorbeeld(p)); }},
    {"VraagFilter",
     [](Programma&) {
       auto filter = std::make_shared<NaamFilter>();
       return GemaaktFormulier{filter, std::make_unique<VraagFilter>(*filter)};
     }},
    {"VraagRecordNr", [](Programma&) { return Maak<VraagRecordNr>("Ga naar Persoonsrecord"); }},
    {"PersInfoForm", [](Programma& p) { return Maak<PersInfoForm>(OpVoorbeeld(p)); }},
    {"OKPersoon", [](Programma& p) { return Maak<OKPersoon>(OpVoorbeeld(p), "Jan", "Jansen"); }},
    {"VraagProv", [](Programma&) { return Maak<VraagProv>("Delft", "  "); }},
};

}  // namespace

std::span<const FormulierRij> Entry() {
  return kRijen;
}

}  // namespace lb77::formulieren
