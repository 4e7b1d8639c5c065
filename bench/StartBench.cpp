// From the start of the program to a main window that can be used, with a set that is nearly full.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "VolleSet.h"
#include "app/Klok.h"
#include "program/Vensterloop.h"
#include "qt/StartVenster.h"

namespace lb77::bench {
namespace {

// A user feels that the program is there at once.
constexpr double kHoogstens = 0.5;
constexpr int kBlik = 1;        // milliseconds
constexpr int kGeduld = 20000;  // milliseconds

// Is it in view, with the start page of the whole set?
bool ToontAllen(const QWidget& venster) {
  const auto* const telling = venster.findChild<QLabel*>("StartTelling");
  const QString begin = QString::number(kVollePersonen) + QLatin1String(" personen");
  return telling && telling->isVisible() && telling->text().startsWith(begin);
}

// The window, in a process of its own: ends as soon as it is in view and has come to rest.
int VoerVenster(int argc, char** argv, const std::filesystem::path& map) {
  const SysteemKlok klok;
  return StartVenster(argc, argv,
                      {.map = [&map] { return map; },
                       .voer =
                           [&klok](Gesprek& gesprek, const std::filesystem::path& waar) {
                             QTimer oog;
                             QObject::connect(&oog, &QTimer::timeout, &oog, [] {
                               const QWidget* venster = QApplication::activeWindow();
                               if (venster && ToontAllen(*venster)) std::_Exit(0);
                             });
                             oog.start(kBlik);
                             QTimer::singleShot(kGeduld, [] { std::_Exit(1); });
                             VoerVoorGebruiker(gesprek, klok, {waar, {}, std::nullopt});
                           }});
}

// `eigen` is the path of this program, by which it starts itself.
void KoudeStart(benchmark::State& state, const std::string& eigen) {
  Meetset set;
  MaakVol(set);
  const std::filesystem::path map = set.Paden().map.parent_path().parent_path();
  const std::string opdracht =
      "QT_QPA_PLATFORM=offscreen '" + eigen + "' --venster '" + map.string() + "' 2>/dev/null";
  double langste = 0;
  for (auto _ : state) {
    const auto begin = std::chrono::steady_clock::now();
    if (std::system(opdracht.c_str()) != 0) state.SkipWithError("het venster kwam niet");
    const std::chrono::duration<double> duur = std::chrono::steady_clock::now() - begin;
    langste = std::max(langste, duur.count());
    state.SetIterationTime(duur.count());
  }
  state.counters["ms_langste"] = langste * 1000;
  if (langste > kHoogstens) state.SkipWithError("trager dan een halve seconde");
}
void MeldAan(const std::string& eigen) {
  benchmark::RegisterBenchmark("BM_KoudeStart",
                               [eigen](benchmark::State& state) { KoudeStart(state, eigen); })
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond)
      ->Iterations(10);
}

}  // namespace

int Hoofd(int argc, char** argv) {
  if (argc == 3 && std::string(argv[1]) == "--venster") {
    int geen = 1;
    return VoerVenster(geen, argv, argv[2]);
  }
  MeldAan(std::filesystem::absolute(argv[0]).string());
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace lb77::bench

int main(int argc, char** argv) {
  return lb77::bench::Hoofd(argc, argv);
}
