#include "store/PlatformFout.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <algorithm>
#include <iterator>
#endif

namespace lb77 {

#ifdef _WIN32

namespace {

struct Rij {
  int systeem;
  std::errc code;
};

// ERROR_VIRUS_INFECTED, which not all headers have.
constexpr int kBesmet = 225;

constexpr Rij kRijen[] = {
    {ERROR_NOT_READY, std::errc::no_such_device},
    {ERROR_DEVICE_NOT_CONNECTED, std::errc::no_such_device},
    {ERROR_BAD_NETPATH, std::errc::no_such_device},
    {ERROR_NETNAME_DELETED, std::errc::no_such_device},
    {ERROR_REM_NOT_LIST, std::errc::no_such_device},
    {ERROR_WRITE_FAULT, std::errc::io_error},
    {ERROR_READ_FAULT, std::errc::io_error},
    {ERROR_GEN_FAILURE, std::errc::io_error},
    {ERROR_SEM_TIMEOUT, std::errc::io_error},
    {ERROR_FILE_CORRUPT, std::errc::io_error},
    {ERROR_NO_SYSTEM_RESOURCES, std::errc::not_enough_memory},
    {ERROR_USER_MAPPED_FILE, std::errc::device_or_resource_busy},
    {ERROR_DELETE_PENDING, std::errc::device_or_resource_busy},
    {kBesmet, std::errc::permission_denied},
};

}  // namespace

std::error_code Herkend(const std::error_code& code) {
  if (code.category() != std::system_category()) return code;
  const auto* const rij = std::ranges::find(kRijen, code.value(), &Rij::systeem);
  return rij == std::end(kRijen) ? code : std::make_error_code(rij->code);
}

#else

std::error_code Herkend(const std::error_code& code) {
  return code;
}

#endif

}  // namespace lb77
