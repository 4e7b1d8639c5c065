#include "exchange/Ged551Datum.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "exchange/GedBepaling.h"
#include "exchange/GedDatum.h"
#include "store/Codes.h"
#include "text/Getallen.h"
#include "text/Maanden.h"

namespace lb77 {

namespace {

constexpr int kHoogsteJaar = 9999;
constexpr int kHoogsteDeel = 99;
constexpr std::array kDagen = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

int Dag(const OpslagDatum& datum) {
  return datum.dagMaand / 100;
}
int Maand(const OpslagDatum& datum) {
  return datum.dagMaand % 100;
}

// By the old calendar, which has the more leap years.
bool IsDag(int dag, int maand, int jaar) {
  const bool schrikkeldag = maand == 2 && dag == 29;
  return dag <= kDagen.at(static_cast<std::size_t>(maand - 1)) && (!schrikkeldag || jaar % 4 == 0);
}

// Can Zet take it?
bool IsOpTeSchrijven(const OpslagDatum& datum) {
  return datum.dagMaand >= 0 && Dag(datum) <= kHoogsteDeel && datum.jaar >= 0 &&
         datum.jaar <= kHoogsteJaar;
}

std::string Rauw(const OpslagDatum& datum) {
  return GedDatumTekst({Dag(datum), Maand(datum), datum.jaar});
}

std::string OfVraagteken(int deel) {
  return deel == 0 ? "?" : GetalTekst(deel);
}

std::string Geschreven(const OpslagDatum& datum) {
  return OfVraagteken(Dag(datum)) + "-" + OfVraagteken(Maand(datum)) + "-" +
         OfVraagteken(datum.jaar);
}

char Code(std::string_view corr) {
  return corr.size() == 1 ? corr.front() : correctie::kGeen;
}

const GedBepaling* BepalingVan(char code) {
  const auto* bepaling = std::ranges::find(kGedBepalingen, code, &GedBepaling::corr);
  return bepaling == kGedBepalingen.end() ? nullptr : bepaling;
}

// The date as a phrase, which every program shows and none counts with.
std::string Zin(const OpslagDatum& datum, const OpslagDatum& tot, char code) {
  std::string_view woord;
  if (code == correctie::kCirca) woord = "circa ";
  if (code == correctie::kNa) woord = "na ";
  if (code == correctie::kVoor) woord = "voor ";
  if (code == correctie::kTussen) woord = "tussen ";
  std::string zin = "(" + std::string(woord) + Geschreven(datum);
  if (code == correctie::kTussen) zin += " en " + Geschreven(tot);
  return zin + ")";
}

// Tells the dates by tags of our own. A date whose numbers do not fit is no date, and is left out.
Ged551DatumRegels Eigen(OpslagDatum datum, OpslagDatum tot, std::string_view corr) {
  Ged551DatumRegels regels{.waarde = {}, .corr = std::string(corr), .rauw = {}, .rauwTot = {}};
  for (OpslagDatum* deze : {&datum, &tot}) {
    if (IsOpTeSchrijven(*deze)) continue;
    ++regels.verlies;
    *deze = {};
  }
  if (datum.IsLeeg() && tot.IsLeeg()) return regels;
  regels.waarde = Zin(datum, tot, Code(corr));
  regels.rauw = Rauw(datum);
  if (!tot.IsLeeg()) regels.rauwTot = Rauw(tot);
  return regels;
}

}  // namespace

std::optional<std::string> Ged551Dag(const OpslagDatum& datum) {
  if (datum.dagMaand < 0 || datum.jaar < 1 || datum.jaar > kHoogsteJaar) return std::nullopt;
  const int dag = Dag(datum);
  const int maand = Maand(datum);
  const std::string jaar = NulGevuld(datum.jaar, 4);
  if (maand == 0) return dag == 0 ? std::optional(jaar) : std::nullopt;
  if (maand > 12 || !IsDag(dag, maand, datum.jaar)) return std::nullopt;
  const std::string naam(kGedMaanden.at(static_cast<std::size_t>(maand - 1)));
  return (dag == 0 ? "" : GetalTekst(dag) + " ") + naam + " " + jaar;
}

Ged551DatumRegels Ged551Datum(const OpslagDatum& datum, const OpslagDatum& tot,
                              std::string_view corr) {
  const char code = Code(corr);
  const auto eerste = Ged551Dag(datum);
  if (code == correctie::kTussen) {
    const auto tweede = Ged551Dag(tot);
    if (!eerste || !tweede) return Eigen(datum, tot, corr);
    return {.waarde = "BET " + *eerste + " AND " + *tweede, .corr = {}, .rauw = {}, .rauwTot = {}};
  }
  if (!eerste) return Eigen(datum, {}, corr);
  const GedBepaling* bepaling = BepalingVan(code);
  const bool onbekend = bepaling == nullptr && !corr.empty();
  return {.waarde = (bepaling ? std::string(bepaling->woord) + " " : "") + *eerste,
          .corr = onbekend ? std::string(corr) : "",
          .rauw = {},
          .rauwTot = {}};
}

}  // namespace lb77
