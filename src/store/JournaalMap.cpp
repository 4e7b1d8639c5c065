#include "store/JournaalMap.h"

#include <cerrno>
#include <fstream>
#include <limits>
#include <system_error>

#include "store/PlatformNamen.h"

namespace lb77 {

namespace fs = std::filesystem;

namespace {

// More than a journal can be worth; what claims to be longer is not read into memory.
constexpr std::uint64_t kHoogsteGrootte = std::uint64_t{1} << 30U;

SysteemFout FoutTeGroot() {
  return FoutVan(std::make_error_code(std::errc::file_too_large));
}

}  // namespace

SysteemFout SchijfJournaalMap::Lijst(std::vector<JournaalPost>& posten) {
  posten.clear();
  std::error_code code;
  fs::directory_iterator plek(map_, code);
  if (code == std::errc::no_such_file_or_directory) return {};
  for (; !code && plek != fs::directory_iterator(); plek.increment(code)) {
    std::error_code weg;
    if (!plek->is_regular_file(weg)) continue;
    const std::uintmax_t grootte = plek->file_size(weg);
    if (!weg) posten.push_back({plek->path().filename().string(), grootte});
  }
  return FoutVan(code);
}

SysteemFout SchijfJournaalMap::Lees(const std::string& naam, std::string& bytes) {
  bytes.clear();
  std::error_code code;
  const std::uintmax_t grootte = fs::file_size(map_ / naam, code);
  if (code) return FoutVan(code);
  if (grootte > kHoogsteGrootte) return FoutTeGroot();
  errno = 0;
  std::ifstream bestand(map_ / naam, std::ios::binary);
  if (!bestand) return FoutVanStroom();
  bytes.resize(static_cast<std::size_t>(grootte));
  bestand.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (bestand.bad()) return FoutVanStroom();
  bytes.resize(static_cast<std::size_t>(bestand.gcount()));
  return {};
}

SysteemFout SchijfJournaalMap::Maak(const std::string& naam) {
  std::error_code code;
  if (fs::create_directory(map_, code)) nieuweMap_ = true;
  if (code) return FoutVan(code);
  // What somebody else has made meanwhile is his.
  return greep_.Open(map_ / naam, Openwijze::Nieuw);
}

SysteemFout SchijfJournaalMap::Open(const std::string& naam) {
  return greep_.Open(map_ / naam);
}

SysteemFout SchijfJournaalMap::Schrijf(std::uint64_t plaats, std::span<const char> bytes) {
  return greep_.Schrijf(plaats, bytes);
}

SysteemFout SchijfJournaalMap::StelNamenVeilig() {
  SysteemFout fout = MapVeiligstellen(map_);
  if (fout || !nieuweMap_) return fout;
  fout = MapVeiligstellen(map_.parent_path());
  nieuweMap_ = static_cast<bool>(fout);
  return fout;
}

SysteemFout SchijfJournaalMap::Hernoem(const std::string& van, const std::string& naar) {
  // A file that is open can't be renamed on every system.
  greep_.Sluit();
  std::error_code code;
  HernoemOpSchijf(map_ / van, map_ / naar, code);
  return FoutVan(code);
}

SysteemFout SchijfJournaalMap::Verwijder(const std::string& naam) {
  std::error_code code;
  static_cast<void>(VerwijderVanSchijf(map_ / naam, code));
  return FoutVan(code);
}

}  // namespace lb77
