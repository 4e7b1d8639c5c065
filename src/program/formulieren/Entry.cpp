// The search for a person, and what entry asks on the way.
#include <memory>

#include "entry/KoppelVragen.h"
#include "entry/MeerKinderen.h"
#include "entry/OKPersoon.h"
#include "entry/PersInfoForm.h"
#include "entry/StartRecord.h"
#include "entry/ToonKinderen.h"
#include "entry/ToonOpm.h"
#include "entry/ToonPersOpm.h"
#include "entry/ToonPersoon.h"
#include "entry/ToonPlaatsen.h"
#include "entry/ToonRelatie.h"
#include "entry/VraagFilter.h"
#include "entry/VraagPlaatsnm.h"
#include "entry/VraagPlaatsnr.h"
#include "entry/VraagProv.h"
#include "entry/VraagRecordNr.h"
#include "entry/WijzigOpm.h"
#include "entry/WijzigPersoon.h"
#include "entry/WijzigRelatie.h"
#include "entry/ZoekPrs.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

constexpr std::int16_t kVoorbeeldRelatie = 2;

OpmVraag Opmerking() {
  return OpmVraagOpKaart(kVoorbeeldPersoon, persoonrubriek::kVoornaam, "Jan");
}

constexpr FormulierRij kRijen[] = {
    {"StartRecord", [](Programma& p) { return Maak<StartRecord>(p.Hoofd()); }},
    {"ToonPersoon", [](Programma& p) { return Maak<ToonPersoon>(p.Hoofd(), kVoorbeeldPersoon); }},
    {"ToonRelatie", [](Programma& p) { return Maak<ToonRelatie>(p.Hoofd(), kVoorbeeldRelatie); }},
    {"ToonKinderen", [](Programma& p) { return Maak<ToonKinderen>(p.Hoofd(), kVoorbeeldRelatie); }},
    {"MeerKinderen", [](Programma& p) { return Maak<MeerKinderen>(p.Hoofd(), kVoorbeeldRelatie); }},
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
    {"WijzigPersoon", [](Programma& p) { return Maak<WijzigPersoon>(OpVoorbeeld(p)); }},
    {"WijzigRelatie",
     [](Programma& p) {
       p.Hoofd().volgers.HuidigRelatieNr = 2;
       return Maak<WijzigRelatie>(p.Hoofd());
     }},
    {"KindErbij", [](Programma& p) { return Maak<PersoonKeuze>(kKindErbij, p.Hoofd()); }},
    {"KindEraf", [](Programma& p) { return Maak<PersoonKeuze>(kKindEraf, p.Hoofd()); }},
    {"KindSchuif", [](Programma& p) { return Maak<PersoonKeuze>(kKindSchuif, p.Hoofd()); }},
    {"VraagPartner", [](Programma& p) { return Maak<PersoonKeuze>(kVraagPartner, p.Hoofd()); }},
    {"HuwSchuif", [](Programma& p) { return Maak<HuwSchuif>(p.Hoofd()); }},
    {"VolgnrKind", [](Programma& p) { return Maak<VolgnummerVraag>(kVolgnrKind, p.Hoofd()); }},
    {"VolgNrHuw", [](Programma& p) { return Maak<VolgnummerVraag>(kVolgNrHuw, p.Hoofd()); }},
    {"ToonPlaatsen", [](Programma& p) { return Maak<ToonPlaatsen>(p.Hoofd()); }},
    {"VraagPlaatsnm", [](Programma& p) { return Maak<VraagPlaatsnm>(p.Hoofd()); }},
    {"VraagPlaatsnr", [](Programma& p) { return Maak<VraagPlaatsnr>(p.Hoofd()); }},
    {"ToonPersOpm", [](Programma& p) { return Maak<ToonPersOpm>(p.Hoofd(), kVoorbeeldPersoon); }},
    {"ToonOpm", [](Programma& p) { return Maak<ToonOpm>(p.Hoofd(), Opmerking()); }},
    {"WijzigOpm",
     [](Programma& p) { return Maak<WijzigOpm>(p.Hoofd(), Opmerking(), std::int16_t{1}); }},
};

}  // namespace

std::span<const FormulierRij> Entry() {
  return kRijen;
}

}  // namespace lb77::formulieren
