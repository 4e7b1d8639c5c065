// The export of a set to a GEDCOM file, against writing the same bytes and reading the files once.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <limits>
#include <string>

#include "GedcomMaker.h"
#include "Meetset.h"
#include "VolleSet.h"
#include "exchange/ExpUitvoer.h"
#include "exchange/GedcomSchrijver.h"
#include "store/VooruitLezen.h"

namespace lb77::bench {
namespace {

constexpr std::uint64_t kZaad = 77;
constexpr double kHoogsteVerhouding = 5;

template <class Taak>
double Rekentijd(const Taak& taak) {
  const std::clock_t begin = std::clock();
  taak();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

// The best of some tries.
template <class Taak>
double Beste(const Taak& taak) {
  double beste = std::numeric_limits<double>::max();
  for (int poging = 0; poging < 9; ++poging) beste = std::min(beste, Rekentijd(taak));
  return beste;
}

ExpSelectie Alles(Bronnen& bron) {
  ExpSelectie selectie;
  const auto vul = [](SelectieLijst& lijst, int laatste) {
    for (int nr = 2; nr <= laatste; ++nr) {
      static_cast<void>(lijst.Voeg(static_cast<std::int16_t>(nr)));
    }
  };
  vul(selectie.SelPersonen, bron.persoon.AantalRecords());
  vul(selectie.SelRelaties, bron.relatie.AantalRecords());
  return selectie;
}

void Exporteer(Bronnen& bron, const ExpSelectie& selectie, const std::filesystem::path& map) {
  ExpBestand uit;
  ExpBestand log;
  if (uit.Open(map / "UIT.GED") || log.Open(map / "UIT.LOG")) throw std::runtime_error("uitvoer");
  GedcomSchrijver schrijver(
      {{bron.persoon, bron.relatie, bron.plaats, bron.opmerking, bron.volgers, bron.schrijfwijze},
       selectie,
       bron.gesprek,
       uit,
       log},
      {.nu = {2000, 1, 1, 0, 0, 0}, .bestandsnaam = "UIT.GED", .set = "MEET"});
  const VooruitLezen vooruit(bron.bestanden);
  const ExpVerloop verloop{.doorgaan = [&uit] { return !uit.Fout(); },
                           .toon = [](const ExpTelling&) {}};
  schrijver.LogSlot(LoopSelectie(schrijver, selectie, verloop));
  if (uit.Sluit() || log.Sluit()) throw std::runtime_error("uitvoer");
}

std::string Bytes(const std::filesystem::path& pad) {
  std::ifstream in(pad, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void BM_Export(benchmark::State& state) {
  const auto personen = static_cast<int>(state.range(0));
  const TijdelijkeMap map;
  MaakGedcom(map / "MEET.GED", personen, static_cast<int>(state.range(1)), kZaad);
  Meetset set;
  set.Importeer(map / "MEET.GED");
  Bronnen bron(set);
  const ExpSelectie selectie = Alles(bron);
  double beste = std::numeric_limits<double>::max();
  for (auto _ : state) {
    const double tijd = Rekentijd([&] { Exporteer(bron, selectie, map.Pad()); });
    beste = std::min(beste, tijd);
    state.SetIterationTime(tijd);
  }
  const std::string bytes = Bytes(map / "UIT.GED");
  const double schrijven = Beste([&] {
    std::ofstream uit(map / "KAAL.GED", std::ios::binary);
    uit.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  });
  const double lezen = Beste([&] { benchmark::DoNotOptimize(EenmaalLezen(set)); });
  state.counters["us_per_persoon"] = beste * 1e6 / personen;
  state.counters["MB"] = static_cast<double>(bytes.size()) / 1e6;
  state.counters["ms_kaal"] = (schrijven + lezen) * 1e3;
  state.counters["x_kaal"] = beste / (schrijven + lezen);
  if (beste > kHoogsteVerhouding * (schrijven + lezen)) {
    state.SkipWithError("meer dan 5 keer het schrijven en lezen");
  }
}

BENCHMARK(BM_Export)
    ->Args({3000, 1200})
    ->Args({10000, 4000})
    ->Args({30000, 12000})
    ->Iterations(9)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
