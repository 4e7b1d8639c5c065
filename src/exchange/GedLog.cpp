#include "exchange/GedLog.h"

#include <cerrno>
#include <ios>
#include <system_error>

#include "store/StroomFout.h"

namespace lb77 {

SysteemFout GedLog::Open(const std::filesystem::path& pad) {
  std::error_code code;
  std::filesystem::create_directories(pad.parent_path(), code);
  if (code) return FoutVan(code);
  errno = 0;
  bestand_.open(pad, std::ios::binary | std::ios::trunc);
  return bestand_ ? SysteemFout{} : FoutVanStroom(pad);
}

void GedLog::Regel(std::string_view regel) {
  bestand_.write(regel.data(), static_cast<std::streamsize>(regel.size()));
  bestand_.write("\r\n", 2);
}

SysteemFout GedLog::Sluit() {
  errno = 0;
  bestand_.close();
  return bestand_ ? SysteemFout{} : FoutVanStroom();
}

}  // namespace lb77
