// The family sheets.
#include <filesystem>
#include <memory>

#include "descendants/GezinMaakTemp.h"
#include "descendants/GezinSchParam.h"
#include "descendants/GezinSchPrs.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

// The father of the person of the other samples: he has a relation.
std::shared_ptr<GezinOpties> MaakOpties() {
  auto opties = std::make_shared<GezinOpties>();
  opties->GezinHoofdNr = kVoorbeeldPersoon + 1;
  return opties;
}

constexpr FormulierRij kRijen[] = {
    {"GezinSchPrs", [](Programma& p) { return Maak<GezinSchPrs>(p.Hoofd()); }},
    {"GezinSchParam",
     [](Programma& p) {
       auto opties = MaakOpties();
       return GemaaktFormulier{opties, std::make_unique<GezinSchParam>(p.Hoofd(), *opties)};
     }},
    {"GezinMaakTemp",
     [](Programma& p) {
       auto opties = MaakOpties();
       const std::filesystem::path pad = p.Hoofd().Ini.TempDir() / "GEZINTMP.TMP";
       return GemaaktFormulier{opties, std::make_unique<GezinMaakTemp>(p.Hoofd(), *opties, pad)};
     }},
};

}  // namespace

std::span<const FormulierRij> Gezinsbladen() {
  return kRijen;
}

}  // namespace lb77::formulieren
