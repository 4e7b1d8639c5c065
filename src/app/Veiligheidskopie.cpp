#include "app/Veiligheidskopie.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <system_error>
#include <utility>

#include "app/KopieBestanden.h"
#include "store/Bestandenset.h"
#include "store/Hoofdrecords.h"
#include "store/Paden.h"
#include "store/PersoonLB77.h"
#include "store/Platform.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLaatste = 10;
constexpr int kMaanden = 24;
constexpr int kMeestePerSeconde = 99;
constexpr const char* kOnderhanden = "BEZIG";
constexpr std::string_view kNaamVorm = "jjjj-mm-dd_uummss";

// What follows the time in the name of a second copy: "_02".
bool IsVolgnummer(std::string_view achter) {
  return achter.size() == 3 && achter[0] == '_' && IsCijfer(achter[1]) && IsCijfer(achter[2]);
}

// "2026-01-02 03:04:05" of "2026-01-02_030405" or "2026-01-02_030405_02"; empty for another name.
std::string TijdVan(std::string_view naam) {
  if (naam.size() < kNaamVorm.size() || naam[10] != '_') return {};
  const std::string_view achter = naam.substr(kNaamVorm.size());
  if (!achter.empty() && !IsVolgnummer(achter)) return {};
  const std::string tijd = std::string(naam.substr(0, 10)) + " " + std::string(naam.substr(11, 2)) +
                           ":" + std::string(naam.substr(13, 2)) + ":" +
                           std::string(naam.substr(15, 2));
  return LeesTijdstip(tijd) ? tijd : std::string();
}

// Months since the year 0.
int MaandVan(std::string_view naam) {
  return static_cast<int>(Getalwaarde(naam.substr(0, 4))) * 12 +
         static_cast<int>(Getalwaarde(naam.substr(5, 2)));
}

int Achter(const fs::path& pad, BestandSoort soort) {
  std::error_code code;
  const std::uintmax_t lengte = fs::file_size(pad, code);
  const std::uintmax_t records = code ? 0 : lengte / RecordLengteVan(soort);
  return records > 1 ? static_cast<int>(std::min<std::uintmax_t>(records, 32767)) - 1 : 0;
}

std::string Twee(int getal) {
  return (getal < 10 ? "0" : "") + GetalTekst(getal);
}

std::string Vier(int jaar) {
  std::string tekst = GetalTekst(jaar);
  return std::string(tekst.size() < 4 ? 4 - tekst.size() : 0, '0') + tekst;
}

std::string Aantal(int aantal, std::string_view een, std::string_view meer) {
  return GetalTekst(aantal) + " " + std::string(aantal == 1 ? een : meer);
}

}  // namespace

std::string TijdTekst(const Klok& klok) {
  const Tijdstip t = klok.Nu();
  return Vier(t.jaar) + "-" + Twee(t.maand) + "-" + Twee(t.dag) + " " + Twee(t.uur) + ":" +
         Twee(t.minuut) + ":" + Twee(t.seconde);
}

std::string KopieTekst(const KopieRij& rij) {
  if (!rij.telling) return rij.tijd + "  niet te openen";
  return rij.tijd + "  " + Aantal(rij.telling->personen, "persoon", "personen") + ", " +
         Aantal(rij.telling->relaties, "relatie", "relaties") + ", " +
         Aantal(rij.telling->plaatsen, "plaats", "plaatsen") + ", " +
         Aantal(rij.telling->opmerkingen, "opmerkingregel", "opmerkingregels");
}

fs::path KopieMap(const fs::path& programmaMap, std::string_view set) {
  return VindPad(programmaMap / "KOPIE" / PadVan(set));
}

Veiligheidskopie::Veiligheidskopie(const Opslag& opslag, const Klok& klok, SetPaden paden,
                                   fs::path map)
    : opslag_(opslag), klok_(klok), paden_(std::move(paden)), map_(std::move(map)) {
  for (const BestandSoort soort : kBestandSoorten) {
    const fs::path& eigen = PadVanSoort(paden_, soort);
    fs::path pad = VindPad(eigen);
    std::error_code code;
    const bool centraal = soort == BestandSoort::Plaatsen && !fs::exists(pad, code);
    if (centraal) pad = VindPad(paden_.centraal);
    bestanden_.push_back({soort, pad, (centraal ? paden_.centraal : eigen).filename()});
  }
}

std::vector<std::string> Veiligheidskopie::Namen() const {
  std::vector<std::string> namen;
  std::error_code code;
  for (fs::directory_iterator i(map_, code), einde; !code && i != einde; i.increment(code)) {
    std::string naam = PadTekst(i->path().filename());
    if (!TijdVan(naam).empty()) namen.push_back(std::move(naam));
  }
  std::ranges::sort(namen, std::ranges::greater());
  return namen;
}

std::string Veiligheidskopie::Laatste() const {
  const std::vector<std::string> namen = Namen();
  return namen.empty() ? std::string() : namen.front();
}

// A second one within a second gets a number.
std::string Veiligheidskopie::NieuweNaam() const {
  std::string tijd = TijdTekst(klok_);
  tijd[10] = '_';
  std::erase(tijd, ':');
  std::string naam = tijd;
  std::error_code code;
  for (int i = 2; fs::exists(map_ / naam, code) && i <= kMeestePerSeconde; ++i) {
    naam = tijd + (i < 10 ? "_0" : "_") + GetalTekst(i);
  }
  return naam;
}

SysteemFout Veiligheidskopie::MaakIn(const fs::path& doel) {
  std::error_code code;
  fs::remove_all(doel, code);
  fs::create_directories(doel, code);
  if (code) return FoutVan(code);
  for (const Bestand& bestand : bestanden_) {
    if (SysteemFout fout = KopieerBestand(bestand.pad, doel / bestand.naam)) return fout;
  }
  if (SysteemFout fout = KopieerMap(VindPad(paden_.tekst), doel / "TEKST")) return fout;
  if (!Tel(doel)) return {kGeenToegang, "De kopie gaat niet open"};
  return MapVeiligstellen(doel);
}

SysteemFout Veiligheidskopie::Maak() {
  // What a form has written may still be on its way.
  if (SysteemFout fout = opslag_.bestanden.Veiligstellen()) return fout;
  const fs::path bezig = map_ / kOnderhanden;
  SysteemFout fout = MaakIn(bezig);
  std::error_code code;
  if (!fout) {
    fs::rename(bezig, map_ / NieuweNaam(), code);
    fout = code ? FoutVan(code) : MapVeiligstellen(map_);
  }
  if (fout) {
    fs::remove_all(bezig, code);
    return fout;
  }
  Ruim();
  return {};
}

SysteemFout Veiligheidskopie::MaakZonodig() {
  const std::string laatste = Laatste();
  return !laatste.empty() && IsGelijk(laatste) ? SysteemFout{} : Maak();
}

bool Veiligheidskopie::IsGelijk(const std::string& naam) const {
  return std::ranges::all_of(bestanden_, [&](const Bestand& bestand) {
    std::string een;
    std::string ander;
    return !LeesAlles(bestand.pad, een) && !LeesAlles(map_ / naam / bestand.naam, ander) &&
           een == ander;
  });
}

void Veiligheidskopie::Ruim() const {
  const std::vector<std::string> namen = Namen();
  const int nu = namen.empty() ? 0 : MaandVan(namen.front());
  int maand = 0;
  for (std::size_t i = kLaatste; i < namen.size(); ++i) {
    // The last of its month stands first.
    const int deze = MaandVan(namen[i]);
    const bool blijft = deze != maand && deze + kMaanden > nu;
    maand = deze;
    std::error_code code;  // what does not go away now goes a next time
    if (!blijft) fs::remove_all(map_ / namen[i], code);
  }
}

std::optional<KopieTelling> Veiligheidskopie::Tel(const fs::path& kopie) {
  std::error_code code;  // an absent file would be made
  for (const Bestand& bestand : bestanden_) {
    if (!fs::exists(kopie / bestand.naam, code)) return std::nullopt;
  }
  Bestandenset bestanden;
  Volgers volgers;
  KopieTelling telling;
  for (const Bestand& bestand : bestanden_) {
    if (bestanden.Open(bestand.soort, kopie / bestand.naam)) return std::nullopt;
    const int achter = Achter(kopie / bestand.naam, bestand.soort);
    if (bestand.soort == BestandSoort::Plaatsen) telling.plaatsen = achter;
    if (bestand.soort == BestandSoort::Opmerkingen) telling.opmerkingen = achter;
  }
  const Opslag opslag{bestanden, volgers, opslag_.gesprek, opslag_.schrijfwijze};
  PersoonLB77 persoon(opslag);
  RelatieLB77 relatie(opslag);
  telling.personen =
      AantalHoofdrecords(persoon, Achter(kopie / bestanden_[0].naam, BestandSoort::Personen) + 1);
  telling.relaties =
      AantalHoofdrecords(relatie, Achter(kopie / bestanden_[1].naam, BestandSoort::Relaties) + 1);
  return telling;
}

std::vector<KopieRij> Veiligheidskopie::Lijst() {
  std::vector<KopieRij> rijen;
  for (std::string& naam : Namen()) {
    std::string tijd = TijdVan(naam);
    auto telling = Tel(map_ / naam);
    rijen.push_back({std::move(naam), std::move(tijd), telling});
  }
  return rijen;
}

SysteemFout Veiligheidskopie::ZetTerug(const std::string& naam) {
  if (TijdVan(naam).empty()) return {kBestandNietGevonden, "Deze veiligheidskopie is er niet"};
  // Read before the copy of what is there, which may let this one go.
  std::map<BestandSoort, std::string> inhoud;
  for (const Bestand& bestand : bestanden_) {
    SysteemFout fout = LeesAlles(map_ / naam / bestand.naam, inhoud[bestand.soort]);
    if (fout) return fout;
  }
  if (SysteemFout fout = MaakZonodig()) return fout;
  return VervangInhoud(opslag_.bestanden, inhoud, "Veiligheidskopie teruggezet: " + TijdVan(naam));
}

}  // namespace lb77
