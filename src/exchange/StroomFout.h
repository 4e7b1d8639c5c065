// Why a stream of the standard library failed.
#pragma once

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "store/PlatformNamen.h"
#include "store/SysteemFout.h"

namespace lb77 {

// The error that the system left behind in the last operation; errno was cleared before it.
[[nodiscard]] inline SysteemFout StroomFout() {
  return FoutVan(std::error_code(errno != 0 ? errno : EIO, std::generic_category()));
}

// The same of a file that could not be opened. Some systems only say that a directory is refused, or
// that a long name is not there.
[[nodiscard]] inline SysteemFout StroomFout(const std::filesystem::path& pad) {
  SysteemFout fout = StroomFout();
  if (IsTeLang(pad)) return FoutVan(std::make_error_code(std::errc::filename_too_long));
  std::error_code code;
  return std::filesystem::is_directory(pad, code)
             ? FoutVan(std::make_error_code(std::errc::is_a_directory))
             : fout;
}

}  // namespace lb77
