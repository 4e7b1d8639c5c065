// The selections and the statistics on a set that is nearly full, beside reading its files once.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "VolleSet.h"
#include "reports/Nazaten.h"

namespace lb77::bench {
namespace {

// What a user waits for without asking himself what it does.
constexpr double kHoogstens = 2.0;
// Among so many of the oldest persons is one with very many descendants.
constexpr std::int16_t kOudsten = 200;
constexpr std::int16_t kEerstePlaats = 2;

// Made once for all that is measured.
class Proef {
 public:
  Proef() {
    MaakVol(set_);
    stamouder_ = MeesteNazaten();
    plaats_ = Bronnen(set_).plaats.Naam(kEerstePlaats);
    lezen_ = EenmaalLezen(set_);
  }
  static Proef& De() {
    static Proef proef;
    return proef;
  }

  void Lijst(const char* opdracht, const char* soort, const std::vector<std::string>& zet) {
    set_.Rapport(opdracht, {soort}, Uitvoer(), zet);
  }
  [[nodiscard]] std::filesystem::path Uitvoer() const { return map_ / "LIJST.TXT"; }
  [[nodiscard]] std::string Stamouder() const { return "PersNr=" + std::to_string(stamouder_); }
  [[nodiscard]] std::string Plaats() const { return "PltsNm=" + plaats_; }
  [[nodiscard]] double Lezen() const { return lezen_; }

 private:
  [[nodiscard]] std::int16_t MeesteNazaten() const {
    Bronnen bronnen(set_);
    Nazaten nazaten(bronnen.persoon, bronnen.relatie);
    const Verloop verloop{[] { return false; }, [](int, int) {}};
    std::int16_t beste = 0;
    std::size_t meeste = 0;
    for (std::int16_t nr = 2; nr < kOudsten; ++nr) {
      const auto wie = nazaten.Vind(nr);
      std::vector<Telling> tellingen;
      if (!wie || !nazaten.Loop(*wie, {}, verloop, tellingen)) continue;
      if (tellingen.size() <= meeste) continue;
      meeste = tellingen.size();
      beste = nr;
    }
    return beste;
  }

  TijdelijkeMap map_;
  Meetset set_;
  std::int16_t stamouder_ = 0;
  std::string plaats_;
  double lezen_ = 0;
};

// The whole command: settings, walk, list, and the copy that the viewer would show.
void Meet(benchmark::State& state, const char* opdracht, const char* soort,
          const std::vector<std::string>& zet) {
  using Klokje = std::chrono::steady_clock;
  Proef& proef = Proef::De();
  for (auto _ : state) {
    const auto begin = Klokje::now();
    proef.Lijst(opdracht, soort, zet);
    if (std::chrono::duration<double>(Klokje::now() - begin).count() > kHoogstens) {
      state.SkipWithError("meer dan twee seconden");
      break;
    }
  }
  std::ifstream lijst(proef.Uitvoer(), std::ios::binary);
  state.counters["regels"] = static_cast<double>(
      std::count(std::istreambuf_iterator<char>(lijst), std::istreambuf_iterator<char>(), '\n'));
  state.counters["ms_lezen"] = proef.Lezen() * 1000;
}

// Criteria that many records meet, and that need all tests.
void BM_Selectie(benchmark::State& state, const char* soort, std::vector<std::string> zet) {
  Meet(state, "selectie", soort, zet);
}
void BM_Plaatsen(benchmark::State& state) {
  Meet(state, "selectie", "plaatsen", {Proef::De().Plaats()});
}
void BM_Statistiek(benchmark::State& state, const char* soort) {
  Meet(state, "statistiek", soort, {Proef::De().Stamouder()});
}
void BM_Families(benchmark::State& state) {
  Meet(state, "statistiek", "families", {});
}

const std::vector<std::string> kPersonen{"VoorNm=a", "AchterNm=e", "VanDatumGeb=1-1-1600"};
const std::vector<std::string> kRelaties{"VoorNm=a", "VanDatumHuw=1-1-1600"};
const std::vector<std::string> kOpmerkingen{"ZoekTekst=e"};

BENCHMARK_CAPTURE(BM_Selectie, personen, "personen", kPersonen)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Selectie, relaties, "relaties", kRelaties)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Plaatsen)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Selectie, opmerkingen, "opmerkingen", kOpmerkingen)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Statistiek, takken, "takken")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Statistiek, tijdbalk, "tijdbalk")->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Families)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
