// The four checks with all their options on a set that is nearly full, beside reading its files once.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "GedcomMaker.h"
#include "Meetset.h"
#include "app/Hoofdmodule.h"
#include "checks/ControleForm.h"

namespace lb77::bench {
namespace {

constexpr std::uint64_t kZaad = 77;
constexpr int kPersonen = 32000;
constexpr int kRelaties = 12000;
constexpr int kPlaatsen = 8000;
constexpr int kOpmerkingen = 20000;
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
    MaakGedcom(map_ / "MEET.GED", kPersonen, kRelaties, kZaad);
    set_.Importeer(map_ / "MEET.GED");
    if (hoofd_.bestanden.OpenSet(set_.Paden())) throw std::runtime_error("geen set");
    hoofd_.instellingen.tijdelijk = map_.Pad();
    VulAan();
  }
  static Proef& De() {
    static Proef proef;
    return proef;
  }

  Hoofdmodule& Hoofd() { return hoofd_; }

 private:
  // Places of which every tenth has the name of another, and remarks of ten lines.
  void VulAan() {
    for (std::int32_t nr = hoofd_.Plaats.AantalRecords() + 1; nr <= kPlaatsen + 1; ++nr) {
      const std::int32_t naam = nr % 10 == 0 ? nr - 1 : nr;
      Eis(hoofd_.Plaats.Nieuw(nr));
      hoofd_.Plaats.Zet("Plaatsnaam", "Plaats " + std::to_string(naam));
      hoofd_.Plaats.Zet("Provcode", nr % 20 == 0 ? "NH" : "ZH");
      Eis(hoofd_.Plaats.Schrijf(static_cast<std::int16_t>(nr)));
    }
    const OpmRegels regels{"een", "twee",  "drie", "vier",  "vijf",
                           "zes", "zeven", "acht", "negen", "tien"};
    const std::int32_t over = kOpmerkingen - hoofd_.Opmerking.AantalRecords();
    for (std::int32_t i = 0; i < over / 10; ++i) {
      const auto nr = static_cast<std::int16_t>(2 + i);
      Eis(hoofd_.Persoon.Lees(nr));
      Eis(hoofd_.Opmerking.SchrijfOpmerking(regels, {}, 0, nr, 0, hoofd_.Persoon.OpmRecord(), 23,
                                            1));
    }
  }
  static void Eis(bool gelukt) {
    if (!gelukt) throw std::runtime_error("de set kan niet worden gemaakt");
  }

  TijdelijkeMap map_;
  Meetset set_;
  Starter gebruiker_;
  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
  Hoofdmodule hoofd_{gebruiker_, klok_, set_.Paden().map};
};

template <class Record>
void LeesAlle(Record& record) {
  const std::int16_t laatste = record.AantalRecords();
  for (std::int32_t nr = 2; nr <= laatste; ++nr) {
    benchmark::DoNotOptimize(record.Lees(static_cast<std::int16_t>(nr)));
  }
}

// All four files, record by record.
void BM_EenmaalLezen(benchmark::State& state) {
  Hoofdmodule& hoofd = Proef::De().Hoofd();
  for (auto _ : state) {
    LeesAlle(hoofd.Persoon);
    LeesAlle(hoofd.Relatie);
    LeesAlle(hoofd.Plaats);
    LeesAlle(hoofd.Opmerking);
  }
}

BENCHMARK(BM_EenmaalLezen)->Unit(benchmark::kMillisecond);

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
}

BENCHMARK_CAPTURE(BM_Controle, personen, &kControlePrs)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Controle, relaties, &kControleRel)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Controle, plaatsen, &kControlePlts)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Controle, opmerkingen, &kControleOpm)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
