// Finding a person by what one types, on a set that is nearly full.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "VolleSet.h"
#include "entry/NaamIndex.h"

namespace lb77::bench {
namespace {

// What a user takes for at once.
constexpr double kHoogstens = 0.1;
// A letter that nearly all have, a part of a name, words in another order, and nobody.
const std::vector<std::string> kGetypt{"a", "jan", "vries, jan de", "qqq"};
constexpr std::size_t kRijen = 15;

class Proef {
 public:
  Proef() { MaakVol(set_); }
  static Proef& De() {
    static Proef proef;
    return proef;
  }
  [[nodiscard]] const Meetset& Set() const { return set_; }

 private:
  Meetset set_;
};

// One key: the search, and the page of those found.
std::size_t Zoek(const NaamIndex& namen, Bronnen& bronnen, const std::string& tekst) {
  const std::vector<std::int16_t> treffers = namen.Zoek(tekst, {});
  for (std::size_t i = 0; i < treffers.size() && i < kRijen; ++i) {
    if (bronnen.persoon.Lees(treffers[i])) {
      benchmark::DoNotOptimize(bronnen.persoon.Periode(treffers[i]));
    }
  }
  return treffers.size();
}

template <class Doe>
void Meet(benchmark::State& state, Doe doe) {
  using Klokje = std::chrono::steady_clock;
  Bronnen bronnen(Proef::De().Set());
  NaamIndex namen;
  namen.Bouw(bronnen.bestanden.Bestand(BestandSoort::Personen));
  std::size_t treffers = 0;
  for (auto _ : state) {
    const auto begin = Klokje::now();
    treffers = doe(bronnen, namen);
    if (std::chrono::duration<double>(Klokje::now() - begin).count() > kHoogstens) {
      state.SkipWithError("meer dan een tiende seconde");
      break;
    }
  }
  state.counters["treffers"] = static_cast<double>(treffers);
}

// The first key, which reads all names.
void BM_EersteToets(benchmark::State& state) {
  Meet(state, [](Bronnen& bronnen, NaamIndex&) {
    NaamIndex namen;
    namen.Bouw(bronnen.bestanden.Bestand(BestandSoort::Personen));
    return Zoek(namen, bronnen, kGetypt.front());
  });
}
void BM_VolgendeToets(benchmark::State& state) {
  const std::string& tekst = kGetypt.at(static_cast<std::size_t>(state.range(0)));
  Meet(state, [&tekst](Bronnen& bronnen, NaamIndex& namen) { return Zoek(namen, bronnen, tekst); });
  state.SetLabel(tekst);
}

BENCHMARK(BM_EersteToets)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_VolgendeToets)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
