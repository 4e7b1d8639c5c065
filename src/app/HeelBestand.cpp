#include "app/HeelBestand.h"

#include <cerrno>
#include <fstream>
#include <ios>
#include <system_error>

namespace lb77 {

SysteemFout LeesHeelBestand(const std::filesystem::path& pad, std::string& inhoud) {
  inhoud.clear();
  std::error_code code;
  if (std::filesystem::is_directory(pad, code)) {
    return FoutVan(std::make_error_code(std::errc::is_a_directory));
  }
  errno = 0;
  std::ifstream in(pad, std::ios::binary);
  if (!in) return FoutVanStroom();
  char blok[4096];
  while (in.read(blok, sizeof blok) || in.gcount() > 0) {
    inhoud.append(blok, static_cast<std::size_t>(in.gcount()));
  }
  if (!in.bad()) return {};
  inhoud.clear();
  return FoutVanStroom();
}

SchrijfUitslag SchrijfHeelBestand(const std::filesystem::path& pad, std::string_view inhoud) {
  errno = 0;
  std::ofstream uit(pad, std::ios::binary | std::ios::trunc);
  if (!uit) return {SchrijfStap::Openen, FoutVanStroom()};
  uit.write(inhoud.data(), static_cast<std::streamsize>(inhoud.size()));
  uit.close();
  if (!uit) return {SchrijfStap::Schrijven, FoutVanStroom()};
  return {};
}

}  // namespace lb77
