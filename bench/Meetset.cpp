#include "Meetset.h"

#include <algorithm>
#include <ostream>
#include <sstream>
#include <stdexcept>

namespace lb77::bench {
namespace {

constexpr const char* kSet = "MEET";

// The commands find a settings file, so that they ask nothing.
constexpr std::string_view kInstellingen = "[Printer]\r\nTekstbr=80\r\nTekstReg=60\r\n";

}  // namespace

Meetset::Meetset() {
  SchrijfBytes(map_ / "LIJNBOOM.INI", kInstellingen);
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {kSet, "Meetset"};
  Doe("nieuw", argumenten);
}

void Meetset::Importeer(const std::filesystem::path& gedcom) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {kSet, ""};
  argumenten.bestand = gedcom;
  Doe("importeer", argumenten);
}

void Meetset::Rapport(std::string_view opdracht, int persoon, const std::filesystem::path& naar,
                      const std::vector<std::string>& zet) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {kSet, std::to_string(persoon)};
  argumenten.naar = naar;
  argumenten.zet = zet;
  Doe(opdracht, argumenten);
}

void Meetset::Rapport(std::string_view opdracht, const std::vector<std::string>& woorden,
                      const std::filesystem::path& naar, const std::vector<std::string>& zet) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {kSet};
  argumenten.woorden.insert(argumenten.woorden.end(), woorden.begin(), woorden.end());
  argumenten.naar = naar;
  argumenten.zet = zet;
  Doe(opdracht, argumenten);
}

SetPaden Meetset::Paden() const {
  return SetPaden::Van(map_ / "DATA", kSet);
}

void Meetset::Doe(std::string_view naam, const OpdrachtArgumenten& argumenten) {
  std::ostream nergens(nullptr);
  std::ostringstream fout;
  const auto& opdrachten = Opdrachten();
  const auto opdracht =
      std::find_if(opdrachten.begin(), opdrachten.end(),
                   [naam](const Opdracht& kandidaat) { return kandidaat.naam == naam; });
  if (opdracht == opdrachten.end()) throw std::runtime_error("opdracht is er niet");
  if (opdracht->doe({map_.Pad(), klok_, nergens, fout}, argumenten) != 0) {
    throw std::runtime_error("opdracht mislukt: " + fout.str());
  }
}

}  // namespace lb77::bench
