#include "app/Veiligheidskopie.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <system_error>
#include <utility>

#include "app/AantalTekst.h"
#include "app/KopieBestanden.h"
#include "store/Bestandenset.h"
#include "store/Hoofdrecords.h"
#include "store/Paden.h"
#include "store/PersoonLB77.h"
#include "store/Platform.h"
#include "store/PlatformNamen.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLaatste = 10;
constexpr int kMaanden = 24;
constexpr int kMeestePerSeconde = 99;
constexpr const char* kOnderhanden = "BEZIG";
constexpr const char* kTekst = "TEKST";
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

std::string Naam(const fs::path& kopie) {
  return PadTekst(kopie.filename());
}

// The last one first.
bool OpNaam(const fs::path& een, const fs::path& ander) {
  return een.filename() > ander.filename();
}

// One that cannot be looked at is no absent one.
bool IsAfwezig(const fs::path& pad) {
  std::error_code code;
  return fs::symlink_status(pad, code).type() == fs::file_type::not_found;
}

// Is it that directory, or below it, whatever links lead there?
bool LigtIn(const fs::path& pad, const fs::path& map) {
  std::error_code code;
  const fs::path weg =
      fs::weakly_canonical(pad, code).lexically_relative(fs::weakly_canonical(map, code));
  return !weg.empty() && *weg.begin() != "..";
}

// Does the file hold all places of the copy under their numbers? Record 1 counts them.
bool IsVoortzetting(std::string_view nu, std::string_view toen) {
  const std::size_t begin = RecordLengteVan(BestandSoort::Plaatsen);
  return nu.size() >= toen.size() && toen.size() >= begin &&
         nu.substr(begin, toen.size() - begin) == toen.substr(begin);
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

}  // namespace

std::string TijdTekst(const Klok& klok) {
  const Tijdstip t = klok.Nu();
  return Vier(t.jaar) + "-" + Twee(t.maand) + "-" + Twee(t.dag) + " " + Twee(t.uur) + ":" +
         Twee(t.minuut) + ":" + Twee(t.seconde);
}

std::string KopieTekst(const KopieRij& rij) {
  if (!rij.telling) return rij.tijd + "  niet te openen";
  return rij.tijd + "  " + AantalTekst(rij.telling->personen, "persoon", "personen") + ", " +
         AantalTekst(rij.telling->relaties, "relatie", "relaties") + ", " +
         AantalTekst(rij.telling->plaatsen, "plaats", "plaatsen") + ", " +
         AantalTekst(rij.telling->opmerkingen, "opmerkingregel", "opmerkingregels");
}

Veiligheidskopie::Veiligheidskopie(const Opslag& opslag, const Klok& klok, SetPaden paden,
                                   KopieMappen plekken)
    : opslag_(opslag), klok_(klok), paden_(std::move(paden)), plekken_(std::move(plekken)) {
  for (const BestandSoort soort : kBestandSoorten) {
    const fs::path& eigen = PadVanSoort(paden_, soort);
    fs::path pad = VindPad(eigen);
    const bool centraal = soort == BestandSoort::Plaatsen && IsAfwezig(pad);
    if (centraal) pad = VindPad(paden_.centraal);
    bestanden_.push_back({soort, pad, (centraal ? paden_.centraal : eigen).filename(), centraal});
  }
}

std::vector<fs::path> Veiligheidskopie::KopieenIn(const fs::path& map) {
  std::vector<fs::path> kopieen;
  std::error_code code;
  for (fs::directory_iterator i(map, code), einde; !code && i != einde; i.increment(code)) {
    if (!TijdVan(Naam(i->path())).empty()) kopieen.push_back(i->path());
  }
  std::ranges::sort(kopieen, OpNaam);
  return kopieen;
}

std::vector<fs::path> Veiligheidskopie::Kopieen() const {
  std::vector<fs::path> alle;
  for (const fs::path& map : plekken_.mappen) {
    const std::vector<fs::path> deze = KopieenIn(map);
    alle.insert(alle.end(), deze.begin(), deze.end());
  }
  std::ranges::stable_sort(alle, OpNaam);
  return alle;
}

fs::path Veiligheidskopie::Laatste() const {
  const std::vector<fs::path> kopieen = Kopieen();
  return kopieen.empty() ? fs::path() : kopieen.front();
}

// A second one within a second gets a number.
fs::path Veiligheidskopie::NieuwPad() const {
  std::string tijd = TijdTekst(klok_);
  tijd[10] = '_';
  std::erase(tijd, ':');
  fs::path pad = Map() / tijd;
  std::error_code code;
  for (int i = 2; fs::exists(pad, code) && i <= kMeestePerSeconde; ++i) {
    pad = Map() / (tijd + (i < 10 ? "_0" : "_") + GetalTekst(i));
  }
  return pad;
}

SysteemFout Veiligheidskopie::MaakIn(const fs::path& doel) {
  // A copy that holds itself would have no end.
  if (LigtIn(doel, VindPad(paden_.tekst))) {
    return {kGeenToegang, "Een kopie kan niet in de map TEKST liggen"};
  }
  std::error_code code;
  VerwijderMapVanSchijf(doel, code);
  fs::create_directories(doel, code);
  if (code) return FoutVan(code);
  for (const Bestand& bestand : bestanden_) {
    if (SysteemFout fout = KopieerBestand(bestand.pad, doel / bestand.naam)) return fout;
  }
  if (SysteemFout fout = KopieerMap(VindPad(paden_.tekst), doel / kTekst)) return fout;
  // Each file is what was read of it; together they are one moment only when nobody wrote meanwhile.
  if (!IsGelijk(doel)) {
    return {kGeenToegang, std::string("De bestandenset is tijdens het kopiëren gewijzigd"_w)};
  }
  if (!Tel(doel)) return {kGeenToegang, "De kopie gaat niet open"};
  return MapVeiligstellen(doel);
}

SysteemFout Veiligheidskopie::Maak() {
  // What a form has written may still be on its way.
  if (SysteemFout fout = opslag_.bestanden.Veiligstellen()) return fout;
  const fs::path bezig = Map() / kOnderhanden;
  SysteemFout fout = MaakIn(bezig);
  const fs::path nieuw = NieuwPad();
  std::error_code code;
  if (!fout) {
    HernoemOpSchijf(bezig, nieuw, code);
    fout = code ? FoutVan(code) : MapVeiligstellen(Map());
  }
  if (!fout) fout = MapVeiligstellen(Map().parent_path());
  if (fout) {
    VerwijderMapVanSchijf(bezig, code);
    return fout;
  }
  Ruim(nieuw);
  gemaakt_ = nieuw;
  return {};
}

SysteemFout Veiligheidskopie::MaakZonodig() {
  const fs::path laatste = Laatste();
  return !laatste.empty() && IsGelijk(laatste) ? SysteemFout{} : Maak();
}

bool Veiligheidskopie::IsGelijk(const fs::path& kopie) const {
  return std::ranges::all_of(bestanden_,
                             [&](const Bestand& bestand) {
                               return ZelfdeBytes(bestand.pad, kopie / bestand.naam);
                             }) &&
         ZelfdeMap(VindPad(paden_.tekst), kopie / kTekst);
}

void Veiligheidskopie::Ruim(const fs::path& nieuw) const {
  const std::vector<fs::path> kopieen = KopieenIn(Map());
  if (kopieen.size() <= kLaatste) return;
  const int nu = MaandVan(Naam(kopieen.front()));
  // A month of which one of the last ten is left has that one.
  int maand = MaandVan(Naam(kopieen[kLaatste - 1]));
  for (std::size_t i = kLaatste; i < kopieen.size(); ++i) {
    // The last of its month stands first.
    const int deze = MaandVan(Naam(kopieen[i]));
    const bool blijft = (deze != maand && deze + kMaanden > nu) || kopieen[i] == nieuw;
    maand = deze;
    std::error_code code;  // what does not go away now goes a next time
    if (!blijft) VerwijderMapVanSchijf(kopieen[i], code);
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

std::vector<KopieRij> Veiligheidskopie::Lijst(const Doorgaan& doorgaan) {
  const std::vector<fs::path> kopieen = Kopieen();
  std::vector<KopieRij> rijen;
  for (const fs::path& kopie : kopieen) {
    if (doorgaan && !doorgaan(rijen.size() + 1, kopieen.size())) break;
    std::string naam = Naam(kopie);
    std::string tijd = TijdVan(naam);
    rijen.push_back({std::move(naam), std::move(tijd), Tel(kopie)});
  }
  return rijen;
}

SysteemFout Veiligheidskopie::LeesKopie(const fs::path& kopie,
                                        std::map<BestandSoort, std::string>& inhoud) const {
  for (const Bestand& bestand : bestanden_) {
    std::string& bytes = inhoud[bestand.soort];
    if (SysteemFout fout = LeesAlles(kopie / bestand.naam, bytes)) return fout;
    std::string nu;
    if (!bestand.centraal || LeesAlles(bestand.pad, nu)) continue;
    if (IsVoortzetting(nu, bytes)) inhoud.erase(bestand.soort);
  }
  return {};
}

std::string TekstUitleg(const TerugUitslag& uitslag) {
  if (!uitslag.tekst) return {};
  return "Ook in de map TEKST; wat daar stond ligt in " + PadTekst(uitslag.vorige / kTekst);
}

TerugUitslag Veiligheidskopie::ZetTerug(const std::string& naam) {
  const std::vector<fs::path> kopieen = Kopieen();
  const auto kopie = std::ranges::find(kopieen, naam, Naam);
  TerugUitslag uitslag;
  if (kopie == kopieen.end()) {
    uitslag.fout = {kBestandNietGevonden, "Deze veiligheidskopie is er niet"};
    return uitslag;
  }
  // Read before the copy of what is there, which may let this one go.
  std::map<BestandSoort, std::string> inhoud;
  MapInhoud teksten;
  uitslag.fout = LeesKopie(*kopie, inhoud);
  if (!uitslag.fout) uitslag.fout = LeesMap(*kopie / kTekst, teksten);
  if (!uitslag.fout) uitslag.fout = MaakZonodig();
  if (uitslag.fout) return uitslag;
  uitslag.vorige = Laatste();
  uitslag.fout = VervangInhoud(opslag_.bestanden, inhoud,
                               "Veiligheidskopie teruggezet: " + TijdVan(naam), uitslag.nietVeilig);
  if (!uitslag.fout) uitslag.tekstFout = SchrijfMap(VindPad(paden_.tekst), teksten, uitslag.tekst);
  return uitslag;
}

}  // namespace lb77
