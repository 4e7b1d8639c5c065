// The reports on a whole file or on two persons.
#include <fstream>

#include "program/formulieren/Gebieden.h"
#include "reports/Krtn.h"
#include "reports/SchemaVerwantschap.h"
#include "reports/VerwantRapport.h"

namespace lb77::formulieren {
namespace {

GemaaktFormulier Verwantschap(Programma& p) {
  const VerwantBestanden bestanden = VerwantBestandenVan(p.Hoofd());
  for (const std::filesystem::path& pad : {bestanden.verslag, bestanden.uitvoer}) {
    std::ofstream(pad, std::ios::binary) << "Schema Verwantschap\r\nGeen verwantschap gevonden\r\n";
  }
  return Maak<VerwantRapport>(p.Hoofd());
}

constexpr FormulierRij kRijen[] = {
    {"PrsKrtn", [](Programma& p) { return Maak<Krtn>(kPrsKrtn, p.Hoofd()); }},
    {"RelKrtn", [](Programma& p) { return Maak<Krtn>(kRelKrtn, p.Hoofd()); }},
    {"SchemaVerwantschap", [](Programma& p) { return Maak<SchemaVerwantschap>(p.Hoofd()); }},
    {"VerwantRapport", Verwantschap},
};

}  // namespace

std::span<const FormulierRij> Rapporten() {
  return kRijen;
}

}  // namespace lb77::formulieren
