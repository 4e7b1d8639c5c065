// The import of GEDCOM files of growing size, against a bare reading of the same file.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>

#include "GedcomMaker.h"
#include "Inlezing.h"
#include "KaalLezen.h"
#include "Meetset.h"
#include "exchange/RegelLezer.h"

namespace lb77::bench {
namespace {

constexpr std::uint64_t kZaad = 77;
constexpr double kHoogsteVerhouding = 15;
constexpr double kHoogsteMiB = 64;
constexpr double kHoogsteJournaal = 1.10;
constexpr double kHoogsteOmzetten = 2;
constexpr int kGangen = 3;  // an import reads its file three times

// What a task took: by the clock on the wall, and of the processor, which a busy machine leaves as
// it is.
struct Duur {
  double wand = 0;
  double rekentijd = 0;
};

template <class Taak>
Duur Meet(const Taak& taak) {
  const auto begin = std::chrono::steady_clock::now();
  const std::clock_t beginRekentijd = std::clock();
  taak();
  const std::clock_t eindRekentijd = std::clock();
  const std::chrono::duration<double> wand = std::chrono::steady_clock::now() - begin;
  return {wand.count(), static_cast<double>(eindRekentijd - beginRekentijd) / CLOCKS_PER_SEC};
}

// The processor time of reading a file three times: the best of some tries.
template <class Lezing>
double Leestijd(const std::filesystem::path& pad, const Lezing& lees) {
  double beste = std::numeric_limits<double>::max();
  for (int poging = 0; poging < 7; ++poging) {
    const Duur duur = Meet([&] {
      for (int gang = 0; gang < kGangen; ++gang) benchmark::DoNotOptimize(lees(pad));
    });
    beste = std::min(beste, duur.rekentijd);
  }
  return beste;
}

// The highest resident memory of this process in MiB; 0 where it cannot be told.
double HoogsteGeheugen() {
  std::ifstream status("/proc/self/status");
  std::string woord;
  while (status >> woord) {
    double kiB = 0;
    if (woord == "VmHWM:" && status >> kiB) return kiB / 1024;
  }
  return 0;
}

// From here on the highest is counted afresh.
void WisHoogste() {
  std::ofstream("/proc/self/clear_refs") << 5;
}

void BM_KaalLezen(benchmark::State& state) {
  const TijdelijkeMap map;
  const auto gedcom = map / "MEET.GED";
  MaakGedcom(gedcom, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), kZaad);
  for (auto _ : state) {
    for (int gang = 0; gang < kGangen; ++gang) benchmark::DoNotOptimize(LeesKaal(gedcom));
  }
}

void BM_Import(benchmark::State& state) {
  const auto personen = static_cast<int>(state.range(0));
  const TijdelijkeMap map;
  const auto gedcom = map / "MEET.GED";
  MaakGedcom(gedcom, personen, static_cast<int>(state.range(1)), kZaad);
  const double kaal = Leestijd(gedcom, LeesKaal);
  const double regels = Leestijd(gedcom, LeesRegels);
  double beste = std::numeric_limits<double>::max();
  WisHoogste();
  for (auto _ : state) {
    Meetset set;
    const Duur duur = Meet([&] { set.Importeer(gedcom); });
    state.SetIterationTime(duur.wand);
    beste = std::min(beste, duur.rekentijd);
  }
  const double hoogste = HoogsteGeheugen();
  state.SetComplexityN(personen);
  state.counters["us_per_persoon"] = beste * 1e6 / personen;
  state.counters["x_kaal"] = beste / kaal;
  state.counters["x_regels"] = beste / regels;
  state.counters["MiB"] = hoogste;
  if (beste > kHoogsteVerhouding * kaal) state.SkipWithError("meer dan 15 keer het kale lezen");
  if (hoogste > kHoogsteMiB) state.SkipWithError("meer dan 64 MiB geheugen");
}

// The best time of an import into a new set, and the memory of the first: what later ones find free
// in the process is none of theirs.
struct Beste {
  double rekentijd = std::numeric_limits<double>::max();
  double MiB = 0;

  void Neem(const std::filesystem::path& gedcom, MetJournaal journaal) {
    const Meetset set;
    WisHoogste();
    const Duur duur = Meet([&] { LeesIn(set, gedcom, journaal); });
    rekentijd = std::min(rekentijd, duur.rekentijd);
    if (MiB == 0) MiB = HoogsteGeheugen();
  }
};

// With a journal and without, in turns.
void BM_Journaal(benchmark::State& state) {
  const TijdelijkeMap map;
  const auto gedcom = map / "MEET.GED";
  MaakGedcom(gedcom, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), kZaad);
  Beste met;
  Beste zonder;
  for (auto _ : state) {
    zonder.Neem(gedcom, MetJournaal::Nee);
    met.Neem(gedcom, MetJournaal::Ja);
  }
  state.counters["s_met"] = met.rekentijd;
  state.counters["s_zonder"] = zonder.rekentijd;
  state.counters["x_tijd"] = met.rekentijd / zonder.rekentijd;
  state.counters["MiB_met"] = met.MiB;
  state.counters["MiB_zonder"] = zonder.MiB;
  state.counters["x_MiB"] = met.MiB / zonder.MiB;
  if (met.rekentijd > kHoogsteJournaal * zonder.rekentijd) state.SkipWithError("meer dan 10% tijd");
  if (met.MiB > kHoogsteJournaal * zonder.MiB) state.SkipWithError("meer dan 10% geheugen");
}

// The forms of a file that the conversion of Unicode is measured on.
enum Vorm : std::int64_t { kAscii, kUtf8, kUtf16 };

// The generated file with an accent on each of its letters e, a tenth of the text.
std::string InUnicode(const std::filesystem::path& pad, Vorm vorm) {
  std::ifstream bestand(pad, std::ios::binary);
  std::string uit;
  for (std::istreambuf_iterator<char> van(bestand), tot; van != tot; ++van) {
    if (vorm == kUtf16) {
      uit += *van == 'e' ? '\xE9' : *van;
      uit += '\0';
    } else if (vorm == kUtf8 && *van == 'e') {
      uit += "\xC3\xA9";
    } else {
      uit += *van;
    }
  }
  return uit;
}

std::size_t LeesMet(const std::filesystem::path& pad, Codering codering) {
  RegelLezer lezer;
  if (lezer.Open(pad)) return 0;
  lezer.BeginMet(codering);
  std::size_t tekens = 0;
  std::string_view regel;
  while (lezer.Volgende(regel)) tekens += regel.size();
  return tekens;
}

// What the conversion of a Unicode file adds to its reading, beside a bare reading of it.
void BM_Omzetten(benchmark::State& state) {
  const TijdelijkeMap map;
  const auto gedcom = map / "MEET.GED";
  MaakGedcom(gedcom, 30000, 12000, kZaad);
  const auto vorm = static_cast<Vorm>(state.range(0));
  SchrijfBytes(gedcom, InUnicode(gedcom, vorm));
  const Codering codering = vorm == kUtf16 ? Codering::Utf16Laag : Codering::Utf8;
  const double kaal = Leestijd(gedcom, LeesKaal);
  const double zonder =
      Leestijd(gedcom, [](const auto& pad) { return LeesMet(pad, Codering::Bytes); });
  double met = std::numeric_limits<double>::max();
  for (auto _ : state) {
    met = std::min(met, Leestijd(gedcom, [&](const auto& pad) { return LeesMet(pad, codering); }));
  }
  state.counters["ms"] = met * 1000;
  state.counters["x_lezen"] = (met - zonder) / kaal;
  if (met - zonder > kHoogsteOmzetten * kaal) state.SkipWithError("meer dan tweemaal lezen");
}

void Maten(benchmark::internal::Benchmark* proef) {
  proef->Args({3000, 1200})->Args({10000, 4000})->Args({30000, 12000});
  proef->Unit(benchmark::kMillisecond);
}

BENCHMARK(BM_KaalLezen)->Apply(Maten);
BENCHMARK(BM_Omzetten)->Arg(kAscii)->Arg(kUtf8)->Arg(kUtf16)->Iterations(1);
BENCHMARK(BM_Journaal)->Args({30000, 12000})->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Import)->Apply(Maten)->UseManualTime()->Complexity(benchmark::oN);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
