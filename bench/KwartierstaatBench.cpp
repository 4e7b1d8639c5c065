// The Kwartierstaat of ten thousand entries, its index and sheets, which grow with them, and the chart.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "GedcomMaker.h"
#include "Meetset.h"

namespace lb77::bench {
namespace {

constexpr std::uint64_t kZaad = 77;
// Two to the fourteenth ancestors are more than the ten thousand that a table holds.
constexpr int kGeneraties = 14;
constexpr int kProband = 2;

const char* const kSober[] = {"OokOpmBox=Nee"};
const char* const kAlles[] = {"OokOpmBox=Ja", "OokNrsBox=Ja",
                              "BroerZusBox=Met Alle Broers en Zussen"};

// The whole command: settings, table, report, and the copy that the viewer would show.
template <std::size_t N>
void BM_Kwartierstaat(benchmark::State& state, const char* const (&zet)[N]) {
  const TijdelijkeMap map;
  const auto gedcom = map / "MEET.GED";
  MaakKwartieren(gedcom, kGeneraties, kZaad);
  Meetset set;
  set.Importeer(gedcom);
  const std::vector<std::string> keuzen(std::begin(zet), std::end(zet));
  for (auto _ : state) set.Rapport("kwartierstaat", kProband, map / "KWST.TXT", keuzen);
  state.counters["KiB"] = static_cast<double>(std::filesystem::file_size(map / "KWST.TXT")) / 1024;
}

BENCHMARK_CAPTURE(BM_Kwartierstaat, sober, kSober)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Kwartierstaat, alles, kAlles)->Unit(benchmark::kMillisecond);

// Generations as the argument.
void BM_Index(benchmark::State& state) {
  const auto generaties = static_cast<int>(state.range(0));
  const TijdelijkeMap map;
  const auto gedcom = map / "MEET.GED";
  MaakKwartieren(gedcom, generaties, kZaad);
  Meetset set;
  set.Importeer(gedcom);
  const std::vector<std::string> keuzen{"OokNrsBox=Ja", "BroerZusBox=Met Alle Broers en Zussen"};
  for (auto _ : state) set.Rapport("index-kwartierstaat", kProband, map / "INDEX.TXT", keuzen);
  const int kwartieren = std::min((1 << generaties) - 1, 10000);
  state.SetComplexityN(kwartieren);
  state.counters["kwartieren"] = kwartieren;
}

BENCHMARK(BM_Index)
    ->DenseRange(kGeneraties - 3, kGeneraties)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

// Generations as the argument: a chart has a line for every position.
void BM_Schema(benchmark::State& state) {
  const auto generaties = static_cast<int>(state.range(0));
  const TijdelijkeMap map;
  const auto gedcom = map / "MEET.GED";
  MaakKwartieren(gedcom, generaties, kZaad);
  Meetset set;
  set.Importeer(gedcom);
  const std::vector<std::string> keuzen{"MaxGen=" + std::to_string(generaties), "OokNrsBox=Ja",
                                        "OokJaarBox=Ja", "UitlijnBox=Ja"};
  for (auto _ : state) set.Rapport("schema-kwartierstaat", kProband, map / "SCHEMA.TXT", keuzen);
  state.SetComplexityN((1 << generaties) - 1);
}

BENCHMARK(BM_Schema)->DenseRange(7, 10)->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);

// All sheets of so many generations.
void BM_Bladen(benchmark::State& state) {
  const auto generaties = static_cast<int>(state.range(0));
  const TijdelijkeMap map;
  const auto gedcom = map / "MEET.GED";
  MaakKwartieren(gedcom, generaties, kZaad);
  Meetset set;
  set.Importeer(gedcom);
  const std::vector<std::string> keuzen{"HSK_CBG_Box=HSK", "OokNrsBox=Ja"};
  for (auto _ : state) set.Rapport("bladen", kProband, map / "BLADEN.TXT", keuzen);
  state.SetComplexityN(std::min((1 << generaties) - 1, 10000));
}

BENCHMARK(BM_Bladen)
    ->DenseRange(4, 13, 3)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
