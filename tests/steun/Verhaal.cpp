#include "steun/Verhaal.h"

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <stdexcept>

#include "steun/Plekken.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

// A field by its bytes; an event is a place, a day with its month, and a year.
enum class Vorm { Tekst, Getal, Gebeurtenis };
struct Plek {
  std::string_view naam;
  std::size_t plaats;
  std::size_t breedte;
  Vorm vorm;
};
constexpr std::size_t kGetal = 2;

const std::vector<Plek> kPersoon = {
    {"Achternaam", 0, 25, Vorm::Tekst},  {"Voornaam", 25, 30, Vorm::Tekst},
    {"Geb", 55, 6, Vorm::Gebeurtenis},   {"GebCorr", 61, 1, Vorm::Tekst},
    {"Doop", 62, 6, Vorm::Gebeurtenis},  {"Ovl", 68, 6, Vorm::Gebeurtenis},
    {"OvlCorr", 74, 1, Vorm::Tekst},     {"Begr", 75, 6, Vorm::Gebeurtenis},
    {"DoopReligie", 81, 2, Vorm::Tekst}, {"Geslacht", 83, 1, Vorm::Tekst},
    {"Relatie1", 84, 2, Vorm::Getal},    {"Relatie2", 86, 2, Vorm::Getal},
    {"Relatie3", 88, 2, Vorm::Getal},    {"Ouders", 90, 2, Vorm::Getal},
    {"Beroep", 92, 30, Vorm::Tekst},     {"OpmRecord", 122, 2, Vorm::Getal},
    {"OpmCode", 124, 2, Vorm::Getal},    {"BegrCrem", 126, 1, Vorm::Tekst},
};
const std::vector<Plek> kRelatie = {
    {"ManNr", 0, 2, Vorm::Getal},     {"VrouwNr", 2, 2, Vorm::Getal},
    {"Otr", 4, 6, Vorm::Gebeurtenis}, {"WHuw", 10, 6, Vorm::Gebeurtenis},
    {"HuwCorr", 16, 1, Vorm::Tekst},  {"KHuw", 17, 6, Vorm::Gebeurtenis},
    {"Religie", 23, 2, Vorm::Tekst},  {"Kind1", 25, 2, Vorm::Getal},
    {"Kind2", 27, 2, Vorm::Getal},    {"Kind3", 29, 2, Vorm::Getal},
    {"Kind4", 31, 2, Vorm::Getal},    {"Kind5", 33, 2, Vorm::Getal},
    {"Kind6", 35, 2, Vorm::Getal},    {"Kind7", 37, 2, Vorm::Getal},
    {"Kind8", 39, 2, Vorm::Getal},    {"Kind9", 41, 2, Vorm::Getal},
    {"Kind10", 43, 2, Vorm::Getal},   {"Kind11", 45, 2, Vorm::Getal},
    {"Kind12", 47, 2, Vorm::Getal},   {"Kind13", 49, 2, Vorm::Getal},
    {"Kind14", 51, 2, Vorm::Getal},   {"Kind15", 53, 2, Vorm::Getal},
    {"HuwSoort", 55, 2, Vorm::Tekst}, {"OpmRecord", 57, 2, Vorm::Getal},
    {"OpmCode", 59, 2, Vorm::Getal},  {"KHuwSch", 61, 1, Vorm::Tekst},
    {"HuwSwPs", 62, 1, Vorm::Tekst},
};
const std::vector<Plek> kPlaats = {
    {"Provcode", 0, 2, Vorm::Tekst},
    {"Plaatsnaam", 2, 25, Vorm::Tekst},
};
const std::vector<Plek> kOpmerking = {
    {"Rubriek", 0, 2, Vorm::Getal},   {"BijRecord", 2, 2, Vorm::Getal},
    {"BijProg", 4, 2, Vorm::Getal},   {"VolgRegel", 6, 2, Vorm::Getal},
    {"BijZelfde", 8, 2, Vorm::Getal}, {"Tekstregel", 10, 80, Vorm::Tekst},
};

struct Bestandsvorm {
  std::string_view soort;
  std::size_t lengte;
  const std::vector<Plek>& plekken;
};
const std::array<Bestandsvorm, 4> kVormen = {{
    {"PRS", 128, kPersoon},
    {"RLT", 64, kRelatie},
    {"OPM", 96, kOpmerking},
    {"PLT", 27, kPlaats},
}};

const Bestandsvorm& VormVan(std::string_view soort) {
  return *std::find_if(kVormen.begin(), kVormen.end(),
                       [&](const Bestandsvorm& vorm) { return vorm.soort == soort; });
}

std::string_view Kaal(std::string_view tekst) {
  const std::size_t begin = tekst.find_first_not_of(' ');
  if (begin == std::string_view::npos) return {};
  return tekst.substr(begin, tekst.find_last_not_of(' ') - begin + 1);
}

// "\x89" is that byte.
std::string Bytes(std::string_view tekst) {
  std::string uit;
  while (!tekst.empty()) {
    const bool byte = tekst.starts_with("\\x");
    uit += byte ? static_cast<char>(std::stoi(std::string(tekst.substr(2, 2)), nullptr, 16))
                : tekst.front();
    tekst.remove_prefix(byte ? 4 : 1);
  }
  return uit;
}

class Record {
 public:
  explicit Record(const Bestandsvorm& vorm) : vorm_(vorm), bytes_(vorm.lengte, ' ') {
    for (const Plek& plek : vorm.plekken) {
      if (plek.vorm != Vorm::Tekst) std::fill_n(bytes_.begin() + Van(plek), plek.breedte, '\0');
    }
  }
  void Zet(std::string_view naam, std::string_view waarde) {
    const Plek& plek = Zoek(naam);
    if (plek.vorm == Vorm::Tekst) {
      const std::string tekst = Bytes(waarde);
      std::copy(tekst.begin(), tekst.end(), bytes_.begin() + Van(plek));
      return;
    }
    std::istringstream getallen{std::string(waarde)};
    int dagMaand = 0;
    int jaar = 0;
    int nr = 0;
    if (plek.vorm == Vorm::Gebeurtenis) getallen >> dagMaand >> jaar;
    getallen >> nr;
    ZetGetal(plek.plaats, nr);
    if (plek.vorm == Vorm::Getal) return;
    ZetGetal(plek.plaats + kGetal, dagMaand);
    ZetGetal(plek.plaats + 2 * kGetal, jaar);
  }
  void Zet(std::string_view naam, int waarde) { Zet(naam, std::to_string(waarde)); }
  [[nodiscard]] const std::string& Tekst() const { return bytes_; }

 private:
  static std::ptrdiff_t Van(const Plek& plek) { return static_cast<std::ptrdiff_t>(plek.plaats); }
  [[nodiscard]] const Plek& Zoek(std::string_view naam) const {
    for (const Plek& plek : vorm_.plekken) {
      if (plek.naam == naam) return plek;
    }
    throw std::runtime_error("no such field: " + std::string(naam));
  }
  void ZetGetal(std::size_t plaats, int getal) {
    bytes_[plaats] = static_cast<char>(getal & 0xFF);
    bytes_[plaats + 1] = static_cast<char>((getal >> 8) & 0xFF);
  }

  const Bestandsvorm& vorm_;
  std::string bytes_;
};

std::string LeesVerhaal(std::string_view naam) {
  return LeesBytes(BronMap() / "tests" / "verhalen" / naam);
}

// "2 | Voornaam=Jan | Geslacht=M"; the records stand in the order of their numbers.
std::string VulRecord(const Bestandsvorm& vorm, std::string_view regel) {
  Record record(vorm);
  while (regel.find('|') != std::string_view::npos) {
    regel.remove_prefix(regel.find('|') + 1);
    const std::string_view veld = Kaal(regel.substr(0, regel.find('|')));
    const std::size_t is = veld.find('=');
    record.Zet(veld.substr(0, is), veld.substr(is + 1));
  }
  return record.Tekst();
}

constexpr std::string_view kFamilie = "familie-records.txt";

std::string UitTabel(std::string_view bestand, std::string_view soort) {
  std::istringstream tabel(LeesVerhaal(bestand));
  const std::string kop = "[" + std::string(soort) + "]";
  std::string uit;
  bool hier = false;
  for (std::string regel; std::getline(tabel, regel);) {
    if (regel.starts_with('[')) hier = regel == kop;
    if (hier && regel.find('|') != std::string::npos) uit += VulRecord(VormVan(soort), regel);
  }
  return uit;
}

// A remark on one field: where the card has its button, and whose it is.
struct Opmerking {
  int rubriek;
  int eigenaar;
  std::string_view knop;
};
constexpr int kRegels = 10;
constexpr std::size_t kSmalst = 68;
constexpr std::size_t kSpeling = 13;

const std::vector<Opmerking> kOpmerkingen = {
    {1, 2, "AchterNmOpm"},    {2, 2, "VoorNmOpm"},      {4, 2, "GebPltsOpm"},
    {8, 2, "GebDatumOpm"},    {16, 2, "DoopPltsOpm"},   {32, 2, "DoopDatumOpm"},
    {64, 2, "ReligieOpm"},    {128, 2, "OvlPltsOpm"},   {256, 2, "OvlDatumOpm"},
    {512, 2, "BegrPltsOpm"},  {1024, 2, "Rubriek(11)"}, {2048, 2, "Rubriek(12)"},
    {4096, 2, "Rubriek(13)"}, {4096, 2, "MaakMeer"},    {-1, 2, "OtrPltsOpm"},
    {-2, 2, "OtrDatumOpm"},   {-4, 2, "WHuwPltsOpm"},   {-8, 2, "WetHuwDatumOpm"},
    {-16, 2, "HuwSoortOpm"},  {-32, 2, "KHuwPltsOpm"},  {-64, 2, "KHuwDatumOpm"},
    {-128, 2, "ReligieOpm"},  {-256, 2, "AlgRelOpm"},
};
constexpr std::string_view kKorteRegel = "De oudste";

// Lines of 68 to 80 characters; the first word of the next one never fits behind them.
std::string OpmRegel(const Opmerking& opmerking, int regel) {
  std::string tekst = "Aantekening-" + std::to_string(10 + regel) + " van " +
                      std::string(opmerking.knop) + " (" + std::to_string(opmerking.rubriek) +
                      "): ";
  const std::size_t lengte =
      kSmalst +
      static_cast<std::size_t>(7 * regel + opmerking.rubriek * opmerking.rubriek) % kSpeling;
  while (tekst.size() < lengte) tekst += static_cast<char>('a' + tekst.size() % 26);
  return tekst;
}

std::string OpmTekst(const Opmerking& opmerking) {
  std::string uit;
  for (int regel = 1; regel <= kRegels; ++regel) {
    uit += (regel == 1 ? "" : " ") + OpmRegel(opmerking, regel);
  }
  return uit;
}

// Which output a remark goes into: the boxes of a new one are empty, but those of a second remark on
// a rubric are ticked.
int Uitvoer(const Opmerking& opmerking) {
  if (opmerking.knop == "MaakMeer") return 1 + 2 + 4 + 8 + 64;
  return opmerking.rubriek == 1 ? 1 + 8 : 0;
}

std::string Schrijf(const Opmerking& opmerking) {
  std::string uit = "vul OpmTekst " + OpmTekst(opmerking) + "\n";
  if (opmerking.rubriek == 1) uit += "stel BijKWST aan\nstel BijGEZIN aan\n";
  return uit + "druk Opslaan\n";
}

// Record 1: how many there are, and where the next one goes.
std::string OpmAdmin(int aantal) {
  Record admin(VormVan("OPM"));
  admin.Zet("Rubriek", aantal + 1);
  admin.Zet("BijRecord", aantal);
  admin.Zet("BijProg", aantal + 2);
  admin.Zet("VolgRegel", 87);
  admin.Zet("Tekstregel", "Opm.Best Lijnboom 1.60");
  return admin.Tekst();
}

std::string OpmBytes() {
  const Bestandsvorm& vorm = VormVan("OPM");
  std::string uit = OpmAdmin(kRegels * static_cast<int>(kOpmerkingen.size()) + 1);
  int nr = 2;
  for (std::size_t i = 0; i < kOpmerkingen.size(); ++i) {
    const Opmerking& deze = kOpmerkingen[i];
    const bool laatste =
        i + 1 == kOpmerkingen.size() || (deze.rubriek > 0) != (kOpmerkingen[i + 1].rubriek > 0);
    for (int regel = 1; regel <= kRegels; ++regel, ++nr) {
      Record record(vorm);
      record.Zet("Rubriek", deze.rubriek);
      record.Zet("BijRecord", deze.eigenaar);
      record.Zet("BijProg", Uitvoer(deze));
      record.Zet("Tekstregel", OpmRegel(deze, regel));
      if (regel < kRegels) record.Zet("VolgRegel", nr + 1);
      if (regel == 1 && !laatste) record.Zet("BijZelfde", nr + kRegels);
      uit += record.Tekst();
    }
  }
  Record kort(vorm);
  kort.Zet("Rubriek", 2);
  kort.Zet("BijRecord", 4);
  kort.Zet("Tekstregel", kKorteRegel);
  return uit + kort.Tekst();
}

}  // namespace

std::string VerhaalVanDeFamilie() {
  return LeesVerhaal("familie-1.txt") + LeesVerhaal("familie-2.txt") + LeesVerhaal("familie-3.txt");
}

std::string VerhaalVanDeOpmerkingen() {
  std::string uit = "vul RecordNr 2\n";
  for (const Opmerking& deze : kOpmerkingen) {
    if (deze.knop == "Rubriek(11)") uit += "druk OpmButton\n";
    if (deze.rubriek == -1) uit += "druk BackButton\ndruk BackButton\ndruk RelNrP(1)\n";
    uit += "druk " + std::string(deze.knop) + "\n";
    if (deze.knop != "MaakMeer") uit += "druk WijzigButton\n";
    uit += Schrijf(deze);
    // A second remark follows on the first while that one is in view.
    if (deze.knop != "Rubriek(13)" && deze.knop != "MaakMeer") uit += "druk BackButton\n";
  }
  return uit + "druk BackButton\nvul RecordNr 4\ndruk VoorNmOpm\ndruk WijzigButton\nvul OpmTekst " +
         std::string(kKorteRegel) + "\ndruk Opslaan\ndruk BackButton\ndruk BackButton\n";
}

std::array<VerhaalBestand, 4> VerwachteBestanden() {
  return {{{"PRS", UitTabel(kFamilie, "PRS")},
           {"RLT", UitTabel(kFamilie, "RLT")},
           {"OPM", OpmBytes()},
           {"PLT", UitTabel(kFamilie, "PLT")}}};
}

std::array<VerhaalBestand, 4> GezinBestanden() {
  std::array<VerhaalBestand, 4> uit = LegeBestanden();
  for (VerhaalBestand& bestand : uit) {
    const std::string bytes = UitTabel("gezin-records.txt", bestand.soort);
    if (!bytes.empty()) bestand.bytes = bytes;
  }
  return uit;
}

std::array<VerhaalBestand, 4> LegeBestanden() {
  const auto admin = [](std::string_view soort, std::string_view regel) {
    return VerhaalBestand{soort, VulRecord(VormVan(soort), regel)};
  };
  return {{admin("PRS",
                 R"(1 | Achternaam=Pers.bestand Lijnboom\x00 | Voornaam=Versie 1.60 | Geb=87 0 0)"),
           admin("RLT", "1 | Otr=87 0 0"),
           {"OPM", OpmAdmin(0)},
           admin("PLT", R"(1 | Provcode=\x00\x00 | Plaatsnaam=87)")}};
}

std::string EersteVerschil(const VerhaalBestand& verwacht, std::string_view gevonden) {
  if (verwacht.bytes == gevonden) return {};
  const auto verschil =
      std::mismatch(verwacht.bytes.begin(), verwacht.bytes.end(), gevonden.begin(), gevonden.end());
  const auto plaats = static_cast<std::size_t>(verschil.first - verwacht.bytes.begin());
  const std::size_t lengte = VormVan(verwacht.soort).lengte;
  const std::size_t begin = plaats - plaats % lengte;
  std::ostringstream uit;
  uit << verwacht.soort << " " << plaats / lengte + 1 << " from byte " << plaats % lengte
      << "\n  expected: " << verwacht.bytes.substr(std::min(begin, verwacht.bytes.size()), lengte)
      << "\n  found:    " << gevonden.substr(std::min(begin, gevonden.size()), lengte)
      << "\n  lengths:  " << verwacht.bytes.size() << ", " << gevonden.size();
  return uit.str();
}

}  // namespace lb77
