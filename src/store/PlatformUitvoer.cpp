#include "store/PlatformUitvoer.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <poll.h>
#include <unistd.h>

#include <csignal>
#endif

namespace lb77 {

#ifdef _WIN32

// A write fails there, and ends no program.
void OverleefVertrokkenLezer() {}

bool LezerIsVertrokken() {
  const HANDLE uitvoer = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD geschreven = 0;
  if (GetFileType(uitvoer) != FILE_TYPE_PIPE || WriteFile(uitvoer, "", 0, &geschreven, nullptr)) {
    return false;
  }
  return GetLastError() == ERROR_NO_DATA || GetLastError() == ERROR_BROKEN_PIPE;
}

#else

void OverleefVertrokkenLezer() {
  std::signal(SIGPIPE, SIG_IGN);
}

// A pipe without a reader is in error, which a full disk is not.
bool LezerIsVertrokken() {
  pollfd uitvoer{.fd = STDOUT_FILENO, .events = POLLOUT, .revents = 0};
  return ::poll(&uitvoer, 1, 0) > 0 && (uitvoer.revents & POLLERR) != 0;
}

#endif

}  // namespace lb77
