// A million persons read in random order, beside as many bare reads of 128 bytes.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <stdexcept>
#include <vector>

#include "GedcomMaker.h"
#include "Meetset.h"
#include "Toeval.h"
#include "forms/StilGesprek.h"
#include "store/Bestandenset.h"
#include "store/PersoonLB77.h"

namespace lb77::bench {
namespace {

constexpr std::uint64_t kZaad = 77;
constexpr int kPersonen = 30000;
constexpr int kGezinnen = 12000;
constexpr int kLezingen = 1000000;
constexpr std::size_t kLengte = RecordLengteVan(BestandSoort::Personen);

// A set of thirty thousand persons, and the numbers of a million of them.
class Proef {
 public:
  Proef() {
    const TijdelijkeMap map;
    MaakGedcom(map / "MEET.GED", kPersonen, kGezinnen, kZaad);
    set_.Importeer(map / "MEET.GED");
    Toeval toeval(kZaad);
    nummers_.reserve(kLezingen);
    for (int i = 0; i < kLezingen; ++i) {
      nummers_.push_back(static_cast<std::int16_t>(toeval.Tussen(2, kPersonen + 1)));
    }
  }

  [[nodiscard]] const std::vector<std::int16_t>& Nummers() const { return nummers_; }
  [[nodiscard]] std::filesystem::path Bestand() const { return set_.Paden().prs; }

 private:
  Meetset set_;
  std::vector<std::int16_t> nummers_;
};

const Proef& DeProef() {
  static const Proef proef;
  return proef;
}

void BM_KaalLezen(benchmark::State& state) {
  const Proef& proef = DeProef();
  const int greep = ::open(proef.Bestand().c_str(), O_RDONLY | O_CLOEXEC);
  if (greep < 0) throw std::runtime_error("het persoonsbestand gaat niet open");
  std::array<char, kLengte> record{};
  for (auto _ : state) {
    for (const std::int16_t nr : proef.Nummers()) {
      const auto plaats = static_cast<off_t>(kLengte) * (nr - 1);
      if (::pread(greep, record.data(), kLengte, plaats) != static_cast<ssize_t>(kLengte)) {
        state.SkipWithError("een record is niet te lezen");
      }
      benchmark::DoNotOptimize(record);
    }
  }
  ::close(greep);
  state.SetItemsProcessed(state.iterations() * kLezingen);
}

void BM_PersoonLees(benchmark::State& state) {
  const Proef& proef = DeProef();
  Bestandenset bestanden;
  if (bestanden.Open(BestandSoort::Personen, proef.Bestand())) {
    throw std::runtime_error("het persoonsbestand gaat niet open");
  }
  Volgers volgers;
  StilGesprek gesprek;
  const Schrijfwijze schrijfwijze;
  PersoonLB77 persoon({bestanden, volgers, gesprek, schrijfwijze});
  for (auto _ : state) {
    for (const std::int16_t nr : proef.Nummers()) {
      if (!persoon.Lees(nr)) state.SkipWithError("een record is niet te lezen");
      benchmark::DoNotOptimize(persoon.RelNrOuders());
    }
  }
  state.SetItemsProcessed(state.iterations() * kLezingen);
}

BENCHMARK(BM_KaalLezen)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PersoonLees)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
