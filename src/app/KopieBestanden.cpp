#include "app/KopieBestanden.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <system_error>
#include <utility>

#include "app/HeelBestand.h"
#include "store/Handeling.h"
#include "store/Platform.h"

namespace lb77 {

namespace {

namespace fs = std::filesystem;

SysteemFout Vervang(RecordBestand& bestand, const std::string& bytes) {
  const std::size_t lengte = bestand.RecordLengte();
  std::string nu;
  for (std::size_t plaats = 0; plaats < bytes.size(); plaats += lengte) {
    const auto nr = static_cast<std::int32_t>(plaats / lengte) + 1;
    std::string record = bytes.substr(plaats, lengte);
    nu.assign(lengte, '\0');
    Leesuitslag uitslag = bestand.Lees(nr, nu);
    if (uitslag.fout) return std::move(uitslag.fout);
    nu.resize(uitslag.gelezen);
    if (nu == record) continue;
    // The last one may be cut short; the length of the file follows.
    record.resize(lengte, '\0');
    if (SysteemFout fout = bestand.Schrijf(nr, record)) return fout;
  }
  return bestand.Lengte() == bytes.size() ? SysteemFout{} : bestand.Kap(bytes.size());
}

SysteemFout VervangAlle(Bestandenset& bestanden,
                        const std::map<BestandSoort, std::string>& inhoud) {
  for (const auto& [soort, bytes] : inhoud) {
    if (SysteemFout fout = Vervang(bestanden.Bestand(soort), bytes)) return fout;
  }
  return {};
}

// The action that would be undone next; 0 for none.
std::uint32_t LaatsteNummer(Journaal& journaal) {
  const auto laatste = journaal.LaatsteTeOngedaan();
  return laatste ? laatste->nummer : 0;
}

SysteemFout Verzamel(const fs::path& map, const fs::path& onder, MapInhoud& inhoud) {
  std::error_code code;
  if (!fs::is_directory(map / onder, code)) return {};
  for (fs::directory_iterator i(map / onder, code), einde; !code && i != einde; i.increment(code)) {
    const fs::file_status soort = i->symlink_status(code);
    if (code) break;
    const fs::path naam = onder / i->path().filename();
    SysteemFout fout;
    if (fs::is_directory(soort)) fout = Verzamel(map, naam, inhoud);
    if (fs::is_regular_file(soort)) fout = LeesAlles(map / naam, inhoud[naam]);
    if (fout) return fout;
  }
  return FoutVan(code);
}

// Beside it first: there is no moment without a whole file.
SysteemFout Verwissel(const fs::path& doel, const std::string& bytes) {
  std::error_code code;
  fs::create_directories(doel.parent_path(), code);
  if (code) return FoutVan(code);
  fs::path naast = doel;
  naast += ".TMP";
  Bestandswerk werk;
  SysteemFout fout = werk.Maak(naast, bytes).fout;
  if (!fout) fout = werk.Veiligstellen(naast);
  if (!fout) fout = werk.Hernoem(naast, doel);
  if (!fout) return werk.VeiligstellenMap(doel.parent_path());
  static_cast<void>(werk.Verwijder(naast));
  return fout;
}

}  // namespace

SysteemFout LeesAlles(const fs::path& pad, std::string& bytes) {
  bytes.clear();
  Bestandsgreep greep;
  if (SysteemFout fout = greep.Open(pad, Openwijze::AlleenLezen)) return fout;
  bytes.resize(static_cast<std::size_t>(greep.Lengte()));
  Leesuitslag uitslag = greep.Lees(0, bytes);
  bytes.resize(uitslag.gelezen);
  return std::move(uitslag.fout);
}

SysteemFout KopieerBestand(const fs::path& bron, const fs::path& doel) {
  std::string bytes;
  if (SysteemFout fout = LeesAlles(bron, bytes)) return fout;
  Bestandsgreep greep;
  if (SysteemFout fout = greep.Open(doel, Openwijze::Nieuw)) return fout;
  if (SysteemFout fout = greep.Schrijf(0, bytes)) return fout;
  if (SysteemFout fout = greep.Veiligstellen()) return fout;
  greep.Sluit();
  std::string terug;
  if (SysteemFout fout = LeesAlles(doel, terug)) return fout;
  return terug == bytes ? SysteemFout{} : FoutVan(std::make_error_code(std::errc::io_error));
}

bool ZelfdeBytes(const fs::path& een, const fs::path& ander) {
  std::string bytes;
  std::string andere;
  return !LeesAlles(een, bytes) && !LeesAlles(ander, andere) && bytes == andere;
}

SysteemFout LeesMap(const fs::path& map, MapInhoud& inhoud) {
  inhoud.clear();
  return Verzamel(map, {}, inhoud);
}

bool ZelfdeMap(const fs::path& een, const fs::path& ander) {
  MapInhoud inhoud;
  MapInhoud andere;
  return !LeesMap(een, inhoud) && !LeesMap(ander, andere) && inhoud == andere;
}

SysteemFout SchrijfMap(const fs::path& map, const MapInhoud& inhoud, bool& gewijzigd) {
  for (const auto& [naam, bytes] : inhoud) {
    std::string nu;
    if (!LeesAlles(map / naam, nu) && nu == bytes) continue;
    if (SysteemFout fout = Verwissel(map / naam, bytes)) return fout;
    gewijzigd = true;
  }
  return {};
}

SysteemFout KopieerMap(const fs::path& bron, const fs::path& doel) {
  std::error_code code;
  if (!fs::is_directory(bron, code)) return {};
  fs::create_directories(doel, code);
  if (code) return FoutVan(code);
  for (fs::directory_iterator i(bron, code), einde; !code && i != einde; i.increment(code)) {
    const fs::file_status soort = i->symlink_status(code);
    if (code) break;
    SysteemFout fout;
    if (fs::is_directory(soort)) fout = KopieerMap(i->path(), doel / i->path().filename());
    if (fs::is_regular_file(soort)) fout = KopieerBestand(i->path(), doel / i->path().filename());
    if (fout) return fout;
  }
  return code ? FoutVan(code) : MapVeiligstellen(doel);
}

SysteemFout VervangInhoud(Bestandenset& bestanden,
                          const std::map<BestandSoort, std::string>& inhoud, std::string_view label,
                          SysteemFout& nietVeilig) {
  const std::shared_ptr<Journaal> journaal = bestanden.HetJournaal();
  const std::uint32_t eerder = journaal ? LaatsteNummer(*journaal) : 0;
  Handeling handeling(bestanden, label);
  SysteemFout fout = VervangAlle(bestanden, inhoud);
  SysteemFout einde = handeling.Voltooi();
  if (!fout) {
    nietVeilig = std::move(einde);
    return {};
  }
  // Half a replacement is none. One that wrote nothing has left no action.
  const std::uint32_t half = journaal ? LaatsteNummer(*journaal) : 0;
  if (half != eerder) static_cast<void>(journaal->MaakOngedaan(half));
  return fout;
}

}  // namespace lb77
