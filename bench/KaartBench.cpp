// Walking over the cards of a large set, opening one, and searching a person by name.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>

#include "GedcomMaker.h"
#include "Meetset.h"
#include "Toeval.h"
#include "app/Hoofdmodule.h"
#include "cli/Personen.h"
#include "entry/ToonPersoon.h"
#include "entry/ZoekPersoon.h"

namespace lb77::bench {
namespace {

constexpr std::uint64_t kZaad = 77;
constexpr int kKlein = 1000;
constexpr int kGroot = 32000;
// A user notices a tenth of a second.
constexpr double kMerkbaar = 0.1;

// A user who does one thing with each form that is shown, and then leaves it by BackButton.
class Klikker final : public Gesprek {
 public:
  std::function<void(Formulier&)> bijVorm = [](Formulier&) {};

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
    bijVorm(formulier);
    if (!formulier.Gesloten()) formulier.VraagSluiten();
  }
  void Dicht(Formulier&) override {}
};

// A session on a set of that many persons; made once for all that is measured.
class Proef {
 public:
  explicit Proef(int personen) : personen_(personen) {
    const TijdelijkeMap map;
    MaakGedcom(map / "MEET.GED", personen, personen * 2 / 5, kZaad);
    set_.Importeer(map / "MEET.GED");
    if (hoofd_.bestanden.OpenSet(set_.Paden())) {
      throw std::runtime_error("de set gaat niet open");
    }
  }
  static Proef& Van(int personen) {
    static std::map<int, Proef> proeven;
    return proeven.try_emplace(personen, personen).first->second;
  }

  [[nodiscard]] std::int16_t Iemand() {
    return static_cast<std::int16_t>(toeval_.Tussen(2, personen_ + 1));
  }
  [[nodiscard]] int Uit(int aantal) { return toeval_.Tussen(0, aantal - 1); }
  Hoofdmodule& Hoofd() { return hoofd_; }
  Klikker& Gebruiker() { return gebruiker_; }

 private:
  int personen_;
  Meetset set_;
  Toeval toeval_{kZaad};
  Klikker gebruiker_;
  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
  Hoofdmodule hoofd_{gebruiker_, klok_, set_.Paden().map};
};

// Somebody to go to: father, mother, a partner; the next person where there is nobody.
void Wandel(Proef& proef, Formulier& kaart, benchmark::State& state) {
  constexpr const char* kWegen[] = {"RecordNrPa", "RecordNrMa", "RecordNrP(1)", "VolgendPersoon"};
  std::size_t weg = static_cast<std::size_t>(proef.Uit(3));
  for (auto _ : state) {
    Bediening* knop = kaart.Zoek(kWegen[weg]);
    const bool bekend = knop->Zichtbaar() && !knop->Waarde().empty();
    kaart.Klik(bekend ? *knop : *kaart.Zoek("VolgendPersoon"));
    weg = (weg + 1) % std::size(kWegen);
  }
}

void BM_Stap(benchmark::State& state) {
  Proef& proef = Proef::Van(static_cast<int>(state.range(0)));
  proef.Gebruiker().bijVorm = [&](Formulier& kaart) { Wandel(proef, kaart, state); };
  LoopKaarten(proef.Gebruiker(), ToonPersoonVraag(proef.Hoofd(), proef.Iemand()));
}

// From a child by the relation of the parents to their first child, each on a card of its own.
void BM_NaarKind(benchmark::State& state) {
  const std::map<std::string, std::string> wegen = {
      {"ToonPersoon", "RelNrOuders"}, {"ToonRelatie", "NaarKind"}, {"ToonKinderen", "NaarKind(1)"}};
  Proef& proef = Proef::Van(static_cast<int>(state.range(0)));
  bool klaar = false;
  proef.Gebruiker().bijVorm = [&](Formulier& kaart) {
    while (!klaar && !kaart.Gesloten()) {
      klaar = !state.KeepRunning();
      if (klaar) return;
      Bediening* knop = kaart.Zoek(wegen.at(kaart.Naam()));
      kaart.Klik(knop->Waarde().empty() ? *kaart.Zoek("VolgendPersoon") : *knop);
    }
  };
  LoopKaarten(proef.Gebruiker(), ToonPersoonVraag(proef.Hoofd(), proef.Iemand()));
}

void BM_KaartOpenen(benchmark::State& state) {
  Proef& proef = Proef::Van(static_cast<int>(state.range(0)));
  proef.Gebruiker().bijVorm = [](Formulier&) {};
  for (auto _ : state) {
    LoopKaarten(proef.Gebruiker(), ToonPersoonVraag(proef.Hoofd(), proef.Iemand()));
  }
}

// The whole file for a name that nobody has: what the last of the hits takes at most.
void BM_ZoekOpNaam(benchmark::State& state) {
  Proef& proef = Proef::Van(static_cast<int>(state.range(0)));
  const auto begin = std::chrono::steady_clock::now();
  for (auto _ : state) {
    std::string voor = "Nergenshuizen*";
    std::string achter;
    benchmark::DoNotOptimize(ZoekPersoonOpNaam(proef.Hoofd(), voor, achter, "*"));
  }
  const std::chrono::duration<double> duur = std::chrono::steady_clock::now() - begin;
  if (duur.count() / static_cast<double>(state.iterations()) > kMerkbaar) {
    state.SkipWithError("een treffer duurt langer dan een tiende seconde");
  }
}

// The command `zoek`, which looks into each name.
void BM_ZoekDeel(benchmark::State& state) {
  Proef& proef = Proef::Van(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        ZoekPersonen(proef.Hoofd().Persoon, proef.Hoofd().schrijfwijze.voorvoegsels, "nergens"));
  }
}

BENCHMARK(BM_Stap)->Arg(kKlein)->Arg(kGroot)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_NaarKind)->Arg(kKlein)->Arg(kGroot)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_KaartOpenen)->Arg(kKlein)->Arg(kGroot)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_ZoekOpNaam)->Arg(kKlein)->Arg(kGroot)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ZoekDeel)->Arg(kKlein)->Arg(kGroot)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lb77::bench

BENCHMARK_MAIN();
