// The descendant reports of up to two thousand entries, the most that a table holds.
#include <benchmark/benchmark.h>

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
constexpr int kStamouder = 2;

const char* const kTekst[] = {"OokOpmBox=Ja", "OokNrsBox=Ja"};
const char* const kIndex[] = {"OokNrsBox=Ja"};
const char* const kHorizontaal[] = {"OokVNrsBox=Ja", "CentreerBox=Ja", "OokDatumsBox=Volledig"};
const char* const kVerticaal[] = {"OokVNrsBox=Ja", "CentreerBox=Ja", "HorVerBox=Verticaal",
                                  "OokPartnersBox=Naast elkaar"};

// The whole command: settings, table, report, and the copy that the viewer would show.
template <std::size_t N>
void BM_Nakomelingen(benchmark::State& state, const char* opdracht, const char* const (&zet)[N]) {
  const TijdelijkeMap map;
  const auto gedcom = map / "MEET.GED";
  MaakParenteel(gedcom, static_cast<int>(state.range(0)), kZaad);
  Meetset set;
  set.Importeer(gedcom);
  const std::vector<std::string> keuzen(std::begin(zet), std::end(zet));
  for (auto _ : state) set.Rapport(opdracht, kStamouder, map / "GEN.TXT", keuzen);
  state.counters["KiB"] = static_cast<double>(std::filesystem::file_size(map / "GEN.TXT")) / 1024;
  state.SetComplexityN(state.range(0));
}

void InVierMaten(benchmark::internal::Benchmark* proef) {
  for (const int aantal : {250, 500, 1000, 2000}) proef->Arg(aantal);
  proef->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK_CAPTURE(BM_Nakomelingen, parenteel, "parenteel", kTekst)->Apply(InVierMaten);
BENCHMARK_CAPTURE(BM_Nakomelingen, index, "index-parenteel", kIndex)->Apply(InVierMaten);
BENCHMARK_CAPTURE(BM_Nakomelingen, horizontaal, "schema-parenteel", kHorizontaal)
    ->Apply(InVierMaten);
BENCHMARK_CAPTURE(BM_Nakomelingen, verticaal, "schema-parenteel", kVerticaal)->Apply(InVierMaten);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
