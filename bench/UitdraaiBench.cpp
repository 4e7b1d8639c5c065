// The dumps of a set and its fixed-width export, as commands.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "GedcomMaker.h"
#include "Meetset.h"
#include "VolleSet.h"

namespace lb77::bench {
namespace {

constexpr std::uint64_t kZaad = 77;
constexpr int kPersonen = 30000;
constexpr int kGezinnen = 12000;
constexpr double kHoogstens = 2;  // seconds

// A set of so many persons, made once, and where its files go.
struct Proef {
  explicit Proef(int personen) {
    MaakGedcom(map / "MEET.GED", personen, kGezinnen / (kPersonen / personen), kZaad);
    set.Importeer(map / "MEET.GED");
    std::filesystem::create_directory(Doel());
  }
  [[nodiscard]] std::filesystem::path Doel() const { return map / "DOEL"; }
  [[nodiscard]] double Megabytes() const {
    double uit = 0;
    for (const auto& een : std::filesystem::directory_iterator(Doel())) {
      uit += static_cast<double>(een.file_size()) / 1e6;
    }
    return uit;
  }

  TijdelijkeMap map;
  Meetset set;
};

Proef& ProefVan(int personen) {
  static std::map<int, Proef> proeven;
  return proeven.try_emplace(personen, personen).first->second;
}

// The whole command: settings, selection, files, and the log that is printed.
void Meet(benchmark::State& state, const char* opdracht) {
  Proef& proef = ProefVan(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    const auto begin = std::chrono::steady_clock::now();
    proef.set.Rapport(opdracht, std::vector<std::string>{}, proef.Doel());
    const std::chrono::duration<double> duur = std::chrono::steady_clock::now() - begin;
    if (duur.count() > kHoogstens) state.SkipWithError("meer dan 2 seconden");
  }
  state.counters["MB"] = proef.Megabytes();
  state.counters["ms_lezen"] = EenmaalLezen(proef.set) * 1000;
  state.SetComplexityN(state.range(0));
}

void BM_Uitdraai(benchmark::State& state) {
  Meet(state, "uitdraai");
}

void BM_Ascii(benchmark::State& state) {
  Meet(state, "ascii");
}

void InDrieMaten(benchmark::internal::Benchmark* proef) {
  for (const int personen : {kPersonen / 10, kPersonen / 3, kPersonen}) proef->Arg(personen);
  proef->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK(BM_Uitdraai)->Apply(InDrieMaten);
BENCHMARK(BM_Ascii)->Apply(InDrieMaten);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
