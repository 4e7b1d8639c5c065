// Any bytes as a script, played on a session with a family of its own. Slashes become underscores,
// so that no script reaches beyond its directory.
#include <algorithm>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Doel.h"
#include "app/Klok.h"
#include "cli/Opdrachten.h"
#include "program/Programma.h"
#include "script/Speler.h"
#include "steun/TijdelijkeMap.h"

using namespace lb77;

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n"
    "0 @I1@ INDI\n1 NAME Jan Pieter /de Vries/\n1 SEX M\n1 BIRT\n2 DATE 3 MAR 1850\n2 PLAC Leiden\n"
    "1 OCCU smid\n1 FAMS @F1@\n1 FAMC @F2@\n1 NOTE Een opmerking over deze persoon\n"
    "0 @I2@ INDI\n1 NAME Anna /Bakker/\n1 SEX F\n1 DEAT\n2 DATE ABT 1901\n1 FAMS @F1@\n"
    "0 @I3@ INDI\n1 NAME Klaas /de Vries/\n1 SEX M\n1 FAMC @F1@\n"
    "0 @I4@ INDI\n1 NAME Pieter /de Vries/\n1 SEX M\n1 FAMS @F2@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 MARR\n2 DATE 1 MAY 1875\n2 PLAC Delft\n1 CHIL @I3@\n"
    "0 @F2@ FAM\n1 HUSB @I4@\n1 CHIL @I1@\n0 TRLR\n";

// The program's directory of all sessions, and the files that lie in it before each of them.
class Werkplaats {
 public:
  Werkplaats() {
    SchrijfBytes(map_ / "LIJNBOOM.INI", "[Printer]\r\nTekstbr=80\r\nTekstReg=60\r\n");
    SchrijfBytes(map_ / "FAMILIE.GED", kGedcom);
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"FUZZ", "De familie"};
    Doe("nieuw", argumenten);
    argumenten.bestand = map_ / "FAMILIE.GED";
    Doe("importeer", argumenten);
    for (const auto& plek : fs::recursive_directory_iterator(map_.Pad())) {
      if (plek.is_regular_file()) bestanden_[plek.path()] = LeesBytes(plek.path());
    }
  }

  [[nodiscard]] const fs::path& Map() const { return map_.Pad(); }
  [[nodiscard]] const Klok& DeKlok() const { return klok_; }

  void Herstel() const {
    for (const auto& plek : fs::directory_iterator(map_.Pad())) fs::remove_all(plek.path());
    for (const auto& [pad, bytes] : bestanden_) SchrijfBytes(pad, bytes);
  }

 private:
  void Doe(std::string_view naam, const OpdrachtArgumenten& argumenten) const {
    std::ostream nergens(nullptr);
    for (const Opdracht& opdracht : Opdrachten()) {
      if (opdracht.naam != naam) continue;
      if (opdracht.doe({map_.Pad(), klok_, nergens, nergens}, argumenten) == 0) return;
    }
    throw std::runtime_error("de familie is er niet");
  }

  TijdelijkeMap map_;
  VasteKlok klok_{{.jaar = 2000, .maand = 1, .dag = 1}};
  std::map<fs::path, std::string> bestanden_;
};

const Werkplaats& DeWerkplaats() {
  static const Werkplaats werkplaats;
  return werkplaats;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t lengte) {
  std::string tekst(reinterpret_cast<const char*>(bytes), lengte);
  std::replace(tekst.begin(), tekst.end(), '/', '_');
  const Draaiboek draaiboek = LeesDraaiboek(tekst);
  if (!draaiboek.fout.empty()) return 0;
  const Werkplaats& werkplaats = DeWerkplaats();
  werkplaats.Herstel();
  SpeelOpties opties;
  opties.basismap = werkplaats.Map();
  const SpeelUitslag uitslag = Speel(
      draaiboek.instructies,
      [&werkplaats](Gesprek& gesprek) {
        VoerProgramma(gesprek, werkplaats.DeKlok(), werkplaats.Map());
      },
      [](std::string_view) {}, std::move(opties));
  if (uitslag.status == 0 && !uitslag.reden.empty()) {
    throw std::logic_error("een gespeeld draaiboek heeft een reden: " + uitslag.reden);
  }
  return 0;
}
