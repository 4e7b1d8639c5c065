// What the journal costs: a save by hand, many records added in one action, a long history.
#include <benchmark/benchmark.h>

#include <stdexcept>
#include <string>

#include "steun/TijdelijkeMap.h"
#include "store/Bestandenset.h"
#include "store/Handeling.h"

namespace lb77::bench {
namespace {

constexpr std::int32_t kVeel = 30000;

// A set of its own on the disk, with a journal or without.
class Proef {
 public:
  explicit Proef(bool journaal) {
    std::filesystem::create_directories(paden_.map);
    if (journaal) {
      bestanden_.ZetJournaal({[] { return std::string("2000-01-01 00:00:00"); }, {}, {}});
    }
    Open();
  }

  void Open() {
    if (bestanden_.OpenSet(paden_)) throw std::runtime_error("de set gaat niet open");
  }
  void Schrijf(BestandSoort soort, std::int32_t nr, char teken) {
    const std::string bytes(RecordLengteVan(soort), teken);
    if (bestanden_.Bestand(soort).Schrijf(nr, bytes)) throw std::runtime_error("schrijffout");
  }
  Bestandenset& Set() { return bestanden_; }

 private:
  TijdelijkeMap map_;
  SetPaden paden_ = SetPaden::Van(map_.Pad(), "MEET");
  Bestandenset bestanden_;
};

// A person and a relation, as a card saves them; without a journal no wait for the disk at all.
void BM_Opslaan(benchmark::State& state) {
  Proef proef(state.range(0) != 0);
  char teken = 'a';
  for (auto _ : state) {
    Handeling handeling(proef.Set(), "Persoon 2 gewijzigd");
    teken = teken == 'a' ? 'b' : 'a';
    proef.Schrijf(BestandSoort::Personen, 2, teken);
    proef.Schrijf(BestandSoort::Relaties, 2, teken);
    if (handeling.Voltooi()) state.SkipWithError("niet voltooid");
  }
}

// As an import adds records, with the count in record 1 written at each; the files are on the disk
// at the end in both cases.
void BM_Toevoegen(benchmark::State& state) {
  for (auto _ : state) {
    Proef proef(state.range(0) != 0);
    Handeling handeling(proef.Set(), "Import");
    for (std::int32_t nr = 2; nr <= kVeel; ++nr) {
      proef.Schrijf(BestandSoort::Personen, nr, 'a');
      proef.Schrijf(BestandSoort::Personen, 1, static_cast<char>('a' + nr % 2));
    }
    if (handeling.Voltooi() || proef.Set().Veiligstellen()) state.SkipWithError("niet voltooid");
  }
}

// Opening, and the question whether an action was left unfinished, behind 500 actions.
void BM_Openen(benchmark::State& state) {
  Proef proef(state.range(0) != 0);
  for (int i = 0; i < 500; ++i) proef.Schrijf(BestandSoort::Personen, 1, static_cast<char>(i % 9));
  for (auto _ : state) {
    proef.Open();
    const auto& journaal = proef.Set().HetJournaal();
    if (journaal && journaal->Onvoltooid()) state.SkipWithError("een onvoltooide handeling");
  }
}

// The list of 500 actions.
void BM_Geschiedenis(benchmark::State& state) {
  Proef proef(true);
  for (int i = 0; i < 500; ++i) proef.Schrijf(BestandSoort::Personen, 1, static_cast<char>(i % 9));
  for (auto _ : state) {
    if (proef.Set().HetJournaal()->Geschiedenis().size() != 500) state.SkipWithError("geen 500");
  }
}

// What the menu asks after each action, behind 500 of them.
void BM_LaatsteHandeling(benchmark::State& state) {
  Proef proef(true);
  for (int i = 0; i < 500; ++i) proef.Schrijf(BestandSoort::Personen, 1, static_cast<char>(i % 9));
  for (auto _ : state) {
    if (!proef.Set().HetJournaal()->LaatsteTeOngedaan()) state.SkipWithError("geen handeling");
  }
}

BENCHMARK(BM_Opslaan)->ArgName("journaal")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Toevoegen)->ArgName("journaal")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Openen)->ArgName("journaal")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Geschiedenis)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LaatsteHandeling)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
