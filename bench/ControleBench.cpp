// The four checks with all their options on a set that is nearly full, beside reading its files once.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <stdexcept>

#include "VolleSet.h"
#include "app/Hoofdmodule.h"
#include "checks/ControleForm.h"

namespace lb77::bench {
namespace {

// What a user waits for without asking himself what it does.
constexpr double kGrens = 2.0;

// Starts each check that is shown, and leaves whatever it shows.
class Starter final : public Gesprek {
 public:
  Antwoord Bericht(BerichtSoort, Knoppen knoppen, std::string_view) override {
    return knoppen == Knoppen::OK ? Antwoord::OK : Antwoord::Nee;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier& formulier) override {
    if (Bediening* ok = formulier.Zoek("OKButton")) formulier.Klik(*ok);
    if (!formulier.Gesloten()) formulier.VraagSluiten();
  }
  void Dicht(Formulier&) override {}
};

// A session on the set; made once for all that is measured.
class Proef {
 public:
  Proef() {
    MaakVol(set_);
    lezen_ = EenmaalLezen(set_);
    if (hoofd_.bestanden.OpenSet(set_.Paden())) throw std::runtime_error("geen set");
    hoofd_.instellingen.tijdelijk = map_.Pad();
  }
  static Proef& De() {
    static Proef proef;
    return proef;
  }

  Hoofdmodule& Hoofd() { return hoofd_; }
  [[nodiscard]] double Lezen() const { return lezen_; }

 private:
  TijdelijkeMap map_;
  Meetset set_;
  Starter gebruiker_;
  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
  Hoofdmodule hoofd_{gebruiker_, klok_, set_.Paden().map};
  double lezen_ = 0;
};

void BM_Controle(benchmark::State& state, const ControleSoort* soort) {
  using Klokje = std::chrono::steady_clock;
  Hoofdmodule& hoofd = Proef::De().Hoofd();
  std::size_t gevonden = 0;
  for (auto _ : state) {
    const auto begin = Klokje::now();
    ControleForm form(*soort, hoofd);
    hoofd.gesprek.ToonModaal(form);
    gevonden = form.Aantal();
    if (std::chrono::duration<double>(Klokje::now() - begin).count() > kGrens) {
      state.SkipWithError("meer dan twee seconden");
      break;
    }
  }
  state.counters["gevonden"] = static_cast<double>(gevonden);
  state.counters["ms_lezen"] = Proef::De().Lezen() * 1000;
}

BENCHMARK_CAPTURE(BM_Controle, personen, &kControlePrs)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Controle, relaties, &kControleRel)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Controle, plaatsen, &kControlePlts)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Controle, opmerkingen, &kControleOpm)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
