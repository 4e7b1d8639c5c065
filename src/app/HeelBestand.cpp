#include "app/HeelBestand.h"

#include <algorithm>
#include <cstddef>
#include <system_error>
#include <utility>

#include "store/Platform.h"
#include "store/PlatformNamen.h"

namespace lb77 {

SysteemFout LeesHeelBestand(const std::filesystem::path& pad, std::string& inhoud) {
  inhoud.clear();
  Bestandsgreep greep;
  if (SysteemFout fout = greep.Open(pad, Openwijze::AlleenLezen)) return fout;
  // one byte more than may be shows that there are more
  const std::uint64_t ruimte = std::min(greep.Lengte(), kMaxHeelBestand) + 1;
  inhoud.resize(static_cast<std::size_t>(ruimte));
  Leesuitslag uitslag = greep.Lees(0, inhoud);
  inhoud.resize(uitslag.gelezen);
  if (!uitslag.fout && inhoud.size() > kMaxHeelBestand) {
    uitslag.fout = FoutVan(std::make_error_code(std::errc::file_too_large));
  }
  if (uitslag.fout) inhoud.clear();
  return std::move(uitslag.fout);
}

SchrijfUitslag Bestandswerk::Maak(const std::filesystem::path& pad, std::string_view inhoud) {
  if (SysteemFout fout = Bestandswerk::Verwijder(pad)) {
    return {SchrijfStap::Openen, std::move(fout)};
  }
  Bestandsgreep greep;
  SysteemFout fout = greep.Open(pad, Openwijze::Nieuw);
  if (fout) return {SchrijfStap::Openen, std::move(fout)};
  fout = greep.Schrijf(0, inhoud);
  if (fout) return {SchrijfStap::Schrijven, std::move(fout)};
  return {};
}

SchrijfUitslag Bestandswerk::Overschrijf(const std::filesystem::path& pad,
                                         std::string_view inhoud) {
  Bestandsgreep greep;
  SysteemFout fout = greep.Open(pad);
  if (fout) return {SchrijfStap::Openen, std::move(fout)};
  fout = greep.Schrijf(0, inhoud);
  if (fout) return {SchrijfStap::Schrijven, std::move(fout)};
  std::error_code code;
  std::filesystem::resize_file(pad, inhoud.size(), code);
  fout = code ? FoutVan(code) : greep.Veiligstellen();
  if (fout) return {SchrijfStap::Schrijven, std::move(fout)};
  return {};
}

SysteemFout Bestandswerk::Veiligstellen(const std::filesystem::path& pad) {
  Bestandsgreep greep;
  if (SysteemFout fout = greep.Open(pad)) return fout;
  return greep.Veiligstellen();
}

SysteemFout Bestandswerk::VeiligstellenMap(const std::filesystem::path& map) {
  return MapVeiligstellen(map);
}

SysteemFout Bestandswerk::Verwijder(const std::filesystem::path& pad) {
  std::error_code code;
  if (std::filesystem::is_directory(std::filesystem::symlink_status(pad, code))) {
    return FoutVan(std::make_error_code(std::errc::is_a_directory));
  }
  static_cast<void>(VerwijderVanSchijf(pad, code));
  return FoutVan(code);
}

SysteemFout Bestandswerk::Koppel(const std::filesystem::path& bestand,
                                 const std::filesystem::path& naam) {
  std::error_code code;
  std::filesystem::create_hard_link(bestand, naam, code);
  return FoutVan(code);
}

SysteemFout Bestandswerk::Hernoem(const std::filesystem::path& van,
                                  const std::filesystem::path& naar) {
  std::error_code code;
  HernoemOpSchijf(van, naar, code);
  return FoutVan(code);
}

}  // namespace lb77
