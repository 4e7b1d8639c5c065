// The export to the contact service on a file set that is nearly full.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "VolleSet.h"
#include "contact/GciNamen.h"
#include "contact/GciOrde.h"
#include "contact/GciScan.h"
#include "text/Namen.h"

namespace lb77::bench {
namespace {

// What a user waits for without asking himself what it does.
constexpr double kHoogstens = 2.0;

// Made once for all that is measured.
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

// Each place of the set is a row under its own number.
GciPlaatsen Tabel(PlaatsLB77& plaats) {
  std::vector<std::string> rijen{""};
  const std::int16_t laatste = plaats.AantalRecords();
  for (std::int16_t nr = 2; nr <= laatste; ++nr) {
    rijen.push_back(Links(plaats.Naam(nr), GciPlaatsen::kNaam) + "ZH NL ");
  }
  return GciPlaatsen(rijen);
}

// From the first person to the series as they go out; `ms_lezen` is what reading the files once costs.
void BM_Reeksen(benchmark::State& state) {
  using Klokje = std::chrono::steady_clock;
  Bronnen bronnen(Proef::De().Set());
  const GciPlaatsen plaatsen = Tabel(bronnen.plaats);
  const Verloop verloop{[] { return false; }, [](int, int) {}};
  std::size_t gevonden = 0;
  std::size_t over = 0;
  for (auto _ : state) {
    const auto begin = Klokje::now();
    GciReeksen tabel;
    GciScan scan(bronnen.persoon, bronnen.relatie, tabel, true,
                 [](const std::string&) { return NaamOordeel::Goed; });
    bool goed = scan.Voer(verloop) == Einde::Klaar;
    std::vector<GciReeks> reeksen = tabel.Neem();
    gevonden = reeksen.size();
    goed = goed && SplitsNamen(reeksen) && LosHaakjesOp(reeksen, [](const std::string&) {});
    OrdenReeksen(reeksen, plaatsen);
    goed = goed && VoegReeksenSamen(reeksen, GciOpties().maxGat);
    ZeefReeksen(reeksen, GciOpties());
    ZetHoofdletters(reeksen);
    over = reeksen.size();
    if (!goed || std::chrono::duration<double>(Klokje::now() - begin).count() > kHoogstens) {
      state.SkipWithError("meer dan twee seconden, of niet gelukt");
      break;
    }
  }
  state.counters["reeksen"] = static_cast<double>(gevonden);
  state.counters["over"] = static_cast<double>(over);
  state.counters["ms_lezen"] = EenmaalLezen(Proef::De().Set()) * 1000;
}

BENCHMARK(BM_Reeksen)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
