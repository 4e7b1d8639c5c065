// The reports on a whole file: kinship and cards, beside reading the files once.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <fstream>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "GedcomMaker.h"
#include "Meetset.h"
#include "forms/StilGesprek.h"
#include "reports/Verwanten.h"
#include "store/Bestandenset.h"

namespace lb77::bench {
namespace {

constexpr std::uint64_t kZaad = 77;
constexpr int kPersonen = 32000;
constexpr int kGezinnen = 12000;
constexpr double kHoogstens = 2;  // seconds

double SecondenSinds(std::chrono::steady_clock::time_point begin) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

// A set of so many persons, made once.
class Proef {
 public:
  explicit Proef(int personen) {
    const std::int64_t gezinnen = std::int64_t{kGezinnen} * personen / kPersonen;
    MaakGedcom(map_ / "MEET.GED", personen, static_cast<int>(gezinnen), kZaad);
    set_.Importeer(map_ / "MEET.GED");
  }

  void Rapport(const char* opdracht, const std::vector<std::string>& woorden) {
    set_.Rapport(opdracht, woorden, Uitvoer());
  }
  [[nodiscard]] std::filesystem::path Uitvoer() const { return map_ / "UIT.TXT"; }

  // Of the largest group of kin: its first person, the one reached last from him, and how many
  // there are.
  struct Groep {
    std::int16_t eerste = 0;
    std::int16_t laatste = 0;
    std::size_t aantal = 0;
  };
  [[nodiscard]] Groep GrootsteGroep() const;

  // Seconds to read the persons and relations once, record by record.
  [[nodiscard]] double Lezen() const {
    const auto begin = std::chrono::steady_clock::now();
    for (const BestandSoort soort : {BestandSoort::Personen, BestandSoort::Relaties}) {
      const SetPaden paden = set_.Paden();
      std::ifstream bestand(soort == BestandSoort::Personen ? paden.prs : paden.rlt,
                            std::ios::binary);
      std::vector<char> record(RecordLengteVan(soort));
      while (bestand.read(record.data(), static_cast<std::streamsize>(record.size()))) {
        benchmark::DoNotOptimize(record.data());
      }
    }
    return SecondenSinds(begin);
  }

 private:
  TijdelijkeMap map_;
  Meetset set_;
};

Proef::Groep Proef::GrootsteGroep() const {
  Bestandenset bestanden;
  if (bestanden.OpenSet(set_.Paden())) throw std::runtime_error("de set gaat niet open");
  Volgers volgers;
  StilGesprek gesprek;
  const Schrijfwijze schrijfwijze;
  const Opslag opslag{bestanden, volgers, gesprek, schrijfwijze};
  PersoonLB77 persoon(opslag);
  RelatieLB77 relatie(opslag);
  std::set<std::int16_t> gezien;
  Groep grootste;
  for (std::int16_t nr = 2; persoon.Lees(nr); ++nr) {
    if (persoon.IsVolgRecord() || gezien.contains(nr)) continue;
    VerwantRij rij;
    const Verloop verloop{[] { return false; }, [](int, int) {}};
    if (!(ZoekVerwanten(rij, nr, persoon, relatie, verloop) == Einde::Klaar)) continue;
    for (std::size_t i = 0; i < rij.Aantal(); ++i) gezien.insert(rij[i].persoon);
    if (rij.Aantal() > grootste.aantal) {
      grootste = {nr, rij[rij.Aantal() - 1].persoon, rij.Aantal()};
    }
  }
  return grootste;
}

Proef& ProefVan(int personen) {
  static std::map<int, Proef> proeven;
  return proeven.try_emplace(personen, personen).first->second;
}

// The whole command: settings, search or cards, report, and the copy that the viewer would show.
void Meet(benchmark::State& state, const char* opdracht, const std::vector<std::string>& woorden) {
  Proef& proef = ProefVan(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    const auto begin = std::chrono::steady_clock::now();
    proef.Rapport(opdracht, woorden);
    if (SecondenSinds(begin) > kHoogstens) state.SkipWithError("meer dan 2 seconden");
  }
  state.counters["KiB"] = static_cast<double>(std::filesystem::file_size(proef.Uitvoer())) / 1024;
  state.counters["ms_lezen"] = proef.Lezen() * 1000;
  state.SetComplexityN(state.range(0));
}

void BM_Verwantschap(benchmark::State& state) {
  const Proef::Groep groep = ProefVan(static_cast<int>(state.range(0))).GrootsteGroep();
  Meet(state, "verwantschap", {std::to_string(groep.eerste), std::to_string(groep.laatste)});
  state.counters["bereikt"] = static_cast<double>(groep.aantal);
}

void BM_Personen(benchmark::State& state) {
  Meet(state, "personen", {"2", std::to_string(state.range(0) + 1)});
}

void BM_Relaties(benchmark::State& state) {
  Meet(state, "relaties", {"2", std::to_string(kGezinnen * state.range(0) / kPersonen + 1)});
}

void InDrieMaten(benchmark::internal::Benchmark* proef) {
  for (const int personen : {kPersonen / 4, kPersonen / 2, kPersonen}) proef->Arg(personen);
  proef->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK(BM_Verwantschap)->Apply(InDrieMaten);
BENCHMARK(BM_Personen)->Apply(InDrieMaten);
BENCHMARK(BM_Relaties)->Apply(InDrieMaten);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
