#include "app/OudeSets.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>

#include "app/Bestandensets.h"
#include "app/KopieBestanden.h"
#include "app/SetMaken.h"
#include "store/JournaalPlek.h"
#include "store/Paden.h"
#include "store/Platform.h"
#include "store/PlatformNamen.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

namespace fs = std::filesystem;

constexpr const char* kCentraal = "PLAATS.PLT";
constexpr const char* kJournaal = "JOURNAAL";  // of a set that lies in a directory of its name
// What a set has beside its files, but for its journal.
constexpr const char* kMappen[] = {"TEKST", "INDEX"};

constexpr std::string_view Uitgang(BestandSoort soort) {
  switch (soort) {
    case BestandSoort::Personen:
      return ".PRS";
    case BestandSoort::Relaties:
      return ".RLT";
    case BestandSoort::Opmerkingen:
      return ".OPM";
    case BestandSoort::Plaatsen:
      break;
  }
  return ".PLT";
}

bool IsBestand(const fs::path& pad) {
  std::error_code code;
  return fs::is_regular_file(pad, code);
}

// The ordinary file of that name, in any case; empty when there is none.
fs::path Gevonden(const fs::path& gevraagd) {
  const fs::path pad = VindPad(gevraagd);
  return IsBestand(pad) ? pad : fs::path();
}

fs::path CentraalBij(const fs::path& map) {
  const fs::path hier = Gevonden(map / kCentraal);
  return hier.empty() ? Gevonden(map.parent_path() / kCentraal) : hier;
}

OudeSet SetVan(const fs::path& prs) {
  OudeSet set;
  set.naam = Hoofdletters(PadTekst(prs.stem()));
  set.map = prs.parent_path();
  for (const BestandSoort soort : kBestandSoorten) {
    fs::path naam = prs.stem();
    naam += Uitgang(soort);
    set.pad.at(IndexVan(soort)) = Gevonden(set.map / naam);
  }
  set.pad.at(IndexVan(BestandSoort::Personen)) = prs;
  if (set.Pad(BestandSoort::Plaatsen).empty()) set.centraal = CentraalBij(set.map);
  return set;
}

bool IsPersonen(const fs::path& pad) {
  const std::string stam = PadTekst(pad.stem());
  return Hoofdletters(PadTekst(pad.extension())) == Uitgang(BestandSoort::Personen) &&
         stam.size() <= kMaxSetNaam && IsSetNaam(stam) && IsBestand(pad);
}

// What lies in a directory; the first that cannot be read is kept in `onleesbaar`.
std::vector<fs::path> Inhoud(const fs::path& map, OnleesbareMap& onleesbaar) {
  std::vector<fs::path> uit;
  std::error_code code;
  for (fs::directory_iterator i(map, code), einde; !code && i != einde; i.increment(code)) {
    uit.push_back(i->path());
  }
  if (code && !onleesbaar.fout) onleesbaar = {map, FoutVan(code)};
  return uit;
}

// Gives the directories that lie there too.
std::vector<fs::path> Verzamel(const fs::path& map, std::vector<OudeSet>& uit,
                               OnleesbareMap& onleesbaar) {
  std::vector<fs::path> mappen;
  for (const fs::path& pad : Inhoud(map, onleesbaar)) {
    std::error_code code;
    if (IsPersonen(pad)) uit.push_back(SetVan(pad));
    if (fs::is_directory(fs::symlink_status(pad, code))) mappen.push_back(pad);
  }
  return mappen;
}

// A name that nobody has, for the directory while it is made.
fs::path InWording(const fs::path& doel) {
  for (int i = 1;; ++i) {
    fs::path pad = doel;
    pad += ".NEW" + GetalTekst(i);
    std::error_code code;
    if (!fs::exists(fs::symlink_status(pad, code))) return pad;
  }
}

// The bytes as they lie there now: somebody may be writing to them.
SysteemFout Kopieer(const fs::path& bron, const fs::path& doel) {
  if (bron.empty()) return {};
  if (SysteemFout fout = KopieerBestand(bron, doel)) return fout;
  if (!ZelfdeBytes(bron, doel)) return FoutInGebruik();
  // Where the times cannot be kept the bytes are as good.
  std::error_code code;
  const fs::file_time_type tijd = fs::last_write_time(bron, code);
  if (!code) fs::last_write_time(doel, tijd, code);
  return {};
}

// The places of the set are its own from here on.
const fs::path& BronVan(const OudeSet& set, BestandSoort soort) {
  return soort == BestandSoort::Plaatsen && !set.centraal.empty() ? set.centraal : set.Pad(soort);
}

SysteemFout KopieerIn(const OudeSet& set, const SetPaden& doel, const fs::path& map) {
  std::error_code code;
  fs::create_directories(map, code);
  if (code) return FoutVan(code);
  for (const BestandSoort soort : kBestandSoorten) {
    const fs::path naam = PadVanSoort(doel, soort).filename();
    if (SysteemFout fout = Kopieer(BronVan(set, soort), map / naam)) return fout;
  }
  for (const char* naam : kMappen) {
    if (SysteemFout fout = KopieerMap(VindPad(set.map / naam), map / naam)) return fout;
  }
  // An action that came to no end is asked about in the copy too.
  if (SysteemFout fout = KopieerMap(JournaalPlek(set.map, set.naam), map / kJournaal)) return fout;
  return MapVeiligstellen(map);
}

// Where its places come when it uses central ones.
fs::path EigenPlaatsen(const OudeSet& set) {
  fs::path pad = set.Pad(BestandSoort::Personen);
  return pad.replace_extension(Uitgang(BestandSoort::Plaatsen));
}

SysteemFout Bestaat() {
  return FoutVan(std::make_error_code(std::errc::file_exists));
}

bool IsVrij(const fs::path& map) {
  std::error_code code;
  return fs::symlink_status(VindPad(map), code).type() == fs::file_type::not_found;
}

SysteemFout MaakOuder(const fs::path& map) {
  std::error_code code;
  fs::create_directories(VindPad(map.parent_path()), code);
  return FoutVan(code);
}

}  // namespace

std::vector<OudeSet> ZoekOudeSets(const fs::path& map, OnleesbareMap* onleesbaar) {
  std::vector<OudeSet> uit;
  OnleesbareMap eerste;
  for (const fs::path& onder : Verzamel(map, uit, eerste)) {
    static_cast<void>(Verzamel(onder, uit, eerste));
  }
  std::ranges::sort(uit, {}, [](const OudeSet& set) { return std::pair(set.naam, set.map); });
  if (onleesbaar) *onleesbaar = std::move(eerste);
  return uit;
}

std::optional<OudeSet> OudeSetVan(const SetPaden& paden) {
  const fs::path prs = Gevonden(paden.prs);
  return prs.empty() ? std::nullopt : std::optional(SetVan(prs));
}

std::vector<std::string> SetsIn(const fs::path& data) {
  std::vector<std::string> uit;
  OnleesbareMap onleesbaar;
  for (const fs::path& pad : Inhoud(VindPad(data), onleesbaar)) {
    std::string naam = Hoofdletters(PadTekst(pad.filename()));
    const bool kan = naam.size() <= kMaxSetNaam && IsSetNaam(naam);
    if (kan && OudeSetVan(SetPaden::Van(data, naam))) uit.push_back(std::move(naam));
  }
  std::ranges::sort(uit);
  uit.erase(std::unique(uit.begin(), uit.end()), uit.end());
  return uit;
}

std::string Ontbrekend(const OudeSet& set) {
  std::string uit;
  for (const BestandSoort soort : kBestandSoorten) {
    if (!BronVan(set, soort).empty()) continue;
    uit.append(uit.empty() ? "" : ", ").append(BestandNaam(soort));
  }
  return uit;
}

SysteemFout KopieerOudeSet(const OudeSet& set, const SetPaden& doel) {
  if (!IsVrij(doel.map)) return Bestaat();
  if (SysteemFout fout = MaakOuder(doel.map)) return fout;
  const fs::path map = VindPad(doel.map);
  const fs::path wording = InWording(map);
  std::error_code code;
  SysteemFout fout = KopieerIn(set, doel, wording);
  if (!fout) {
    HernoemOpSchijf(wording, map, code);
    fout = FoutVan(code);
  }
  if (!fout) return MapVeiligstellen(map.parent_path());
  VerwijderMapVanSchijf(wording, code);  // all of it was made just now
  return fout;
}

bool LigtErAl(const OudeSet& set, const SetPaden& doel) {
  std::error_code code;
  return fs::equivalent(set.map, VindPad(doel.map), code);
}

SysteemFout KoppelOudeSet(const OudeSet& set, const SetPaden& doel) {
  const bool lagErAl = LigtErAl(set, doel);
  if (!lagErAl && !IsVrij(doel.map)) return Bestaat();
  if (SysteemFout fout = MaakOuder(doel.map)) return fout;
  if (!set.centraal.empty()) {
    if (SysteemFout fout = Kopieer(set.centraal, EigenPlaatsen(set))) return fout;
  }
  if (lagErAl) return {};
  std::error_code code;
  fs::create_directory_symlink(fs::absolute(set.map), VindPad(doel.map), code);
  SysteemFout fout = FoutVan(code);
  if (fout) RuimKoppeling(set, doel, true);
  return fout;
}

void RuimKopie(const SetPaden& doel) {
  std::error_code code;
  VerwijderMapVanSchijf(VindPad(doel.map), code);
}

void RuimKoppeling(const OudeSet& set, const SetPaden& doel, bool lagErAl) {
  std::error_code code;
  if (!set.centraal.empty()) static_cast<void>(VerwijderVanSchijf(EigenPlaatsen(set), code));
  if (!lagErAl) static_cast<void>(VerwijderVanSchijf(VindPad(doel.map), code));
}

}  // namespace lb77
