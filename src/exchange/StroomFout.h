// Why a stream of the standard library failed.
#pragma once

#include <cerrno>
#include <system_error>

#include "store/SysteemFout.h"

namespace lb77 {

// The error that the system left behind in the last operation; errno was cleared before it.
[[nodiscard]] inline SysteemFout StroomFout() {
  return FoutVan(std::error_code(errno != 0 ? errno : EIO, std::generic_category()));
}

}  // namespace lb77
