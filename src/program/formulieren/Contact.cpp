// The export to the contact service.
#include "contact/ExpGCI.h"
#include "contact/ExpGCICorr.h"
#include "contact/ExpGCIParam.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

GemaaktFormulier Param(Programma& programma) {
  auto opties = std::make_shared<GciOpties>();
  return {opties, std::make_unique<ExpGCIParam>(programma.Hoofd(), *opties)};
}

// Twelve places of the same beginning, so that there is a page and something behind it.
GemaaktFormulier Corr(Programma& programma) {
  auto tabellen = std::make_shared<GciTabellen>();
  tabellen->provincies = GciCodes({"NH Noord-Holland", "ZH Zuid-Holland"});
  for (const char* deel : {"", "aan den Rijn", "Berkenrode", "Binnen", "Boven", "Buiten", "Centrum",
                           "Noord", "Oost", "West", "Zuid", "Zijde"}) {
    const bool noord = *deel == 'N' || *deel == 'B';
    static_cast<void>(tabellen->plaatsen.VoegToe(std::string("Aarddorp ") + deel,
                                                 noord ? "NH" : "ZH", kNederland));
  }
  const GciPlaats plaats{12, "Aarddorp", "", "Aarddorp", {"", std::string(kNederland)}};
  return {tabellen, std::make_unique<ExpGCICorr>(programma.Hoofd().gesprek, *tabellen, plaats)};
}

constexpr FormulierRij kRijen[] = {
    {"ExpGCIParam", Param},
    {"ExpGCI", [](Programma& p) { return Maak<ExpGCI>(p.Hoofd(), GciOpties{}); }},
    {"ExpGCICorr", Corr},
};

}  // namespace

std::span<const FormulierRij> Contact() {
  return kRijen;
}

}  // namespace lb77::formulieren
