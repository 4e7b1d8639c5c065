// Why a stream of the standard library could not be opened.
#pragma once

#include <filesystem>
#include <system_error>

#include "store/PlatformNamen.h"
#include "store/SysteemFout.h"

namespace lb77 {

// As FoutVanStroom (errno was cleared before), of a file of that name. Some systems only say that a
// directory is refused, or that a long name is not there.
[[nodiscard]] inline SysteemFout FoutVanStroom(const std::filesystem::path& pad) {
  SysteemFout fout = FoutVanStroom();
  if (IsTeLang(pad)) return FoutVan(std::make_error_code(std::errc::filename_too_long));
  std::error_code code;
  return std::filesystem::is_directory(pad, code)
             ? FoutVan(std::make_error_code(std::errc::is_a_directory))
             : fout;
}

}  // namespace lb77
