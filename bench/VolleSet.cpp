#include "VolleSet.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "GedcomMaker.h"

namespace lb77::bench {
namespace {

constexpr std::uint64_t kZaad = 77;

void Eis(bool gelukt) {
  if (!gelukt) throw std::runtime_error("de set gaat niet open of kan niet worden gemaakt");
}

void MaakPlaatsen(PlaatsLB77& plaats) {
  for (std::int32_t nr = plaats.AantalRecords() + 1; nr <= kVollePlaatsen + 1; ++nr) {
    const std::int32_t naam = nr % 10 == 0 ? nr - 1 : nr;
    Eis(plaats.Nieuw(nr));
    plaats.Zet("Plaatsnaam", "Plaats " + std::to_string(naam));
    plaats.Zet("Provcode", nr % 20 == 0 ? "NH" : "ZH");
    Eis(plaats.Schrijf(static_cast<std::int16_t>(nr)));
  }
}

void MaakOpmerkingen(Bronnen& bronnen) {
  const OpmRegels regels{"een", "twee",  "drie", "vier",  "vijf",
                         "zes", "zeven", "acht", "negen", "tien"};
  const std::int32_t over = kVolleOpmerkingen - bronnen.opmerking.AantalRecords();
  for (std::int32_t i = 0; i < over / 10; ++i) {
    const auto nr = static_cast<std::int16_t>(2 + i);
    Eis(bronnen.persoon.Lees(nr));
    Eis(bronnen.opmerking.SchrijfOpmerking(regels, {}, 0, nr, 0, bronnen.persoon.OpmRecord(), 23,
                                           1));
  }
}

template <class Record>
void LeesAlle(Record& record) {
  const std::int16_t laatste = record.AantalRecords();
  for (std::int32_t nr = 2; nr <= laatste; ++nr) {
    benchmark::DoNotOptimize(record.Lees(static_cast<std::int16_t>(nr)));
  }
}

}  // namespace

Bronnen::Bronnen(const Meetset& set) {
  Eis(!bestanden.OpenSet(set.Paden()));
}

void MaakVol(Meetset& set) {
  const TijdelijkeMap map;
  MaakGedcom(map / "MEET.GED", kVollePersonen, kVolleRelaties, kZaad);
  set.Importeer(map / "MEET.GED");
  Bronnen bronnen(set);
  MaakPlaatsen(bronnen.plaats);
  MaakOpmerkingen(bronnen);
}

double EenmaalLezen(const Meetset& set) {
  Bronnen bronnen(set);
  const auto begin = std::chrono::steady_clock::now();
  LeesAlle(bronnen.persoon);
  LeesAlle(bronnen.relatie);
  LeesAlle(bronnen.plaats);
  LeesAlle(bronnen.opmerking);
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

}  // namespace lb77::bench
