#include "cli/Afdrukken.h"

#include <fstream>
#include <ostream>
#include <system_error>

#include "output/Tekstpaginas.h"
#include "store/PlatformNamen.h"
#include "text/Unicode.h"

namespace lb77 {

void DrukUit(const std::filesystem::path& bron, std::ostream& uit) {
  std::ifstream in(bron, std::ios::binary);
  std::string regel;
  while (std::getline(in, regel)) {
    if (!regel.empty() && regel.back() == '\r') regel.pop_back();
    uit << WindowsNaarUtf8(regel) << '\n';
  }
}

SysteemFout BewaarAls(const std::filesystem::path& bron, const std::filesystem::path& naar) {
  if (!IsApparaat(naar)) return KopieerTekst(bron, naar);
  std::ifstream in(bron, std::ios::binary);
  std::ofstream uit(naar, std::ios::binary);
  uit << in.rdbuf();
  uit.close();
  return uit ? SysteemFout{} : FoutVanStroom();
}

}  // namespace lb77
