// The Kwartierstaat of ten thousand entries.
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

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
