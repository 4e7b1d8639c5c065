#include "store/PlatformSlot.h"

#include <system_error>
#include <thread>
#include <utility>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace lb77 {

#ifdef _WIN32

// A directory cannot be locked here: a file in it stands for it, which the system removes when its
// only handle is closed.
SysteemFout Slot::Probeer(const std::filesystem::path& map) {
  HANDLE greep =
      CreateFileW((map / L"LB77.LCK").c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                  FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (greep != INVALID_HANDLE_VALUE) {
    greep_ = reinterpret_cast<std::intptr_t>(greep);
    return {};
  }
  const DWORD fout = GetLastError();
  if (fout == ERROR_SHARING_VIOLATION || fout == ERROR_DELETE_PENDING) return FoutInGebruik();
  return FoutVan({static_cast<int>(fout), std::system_category()});
}

void Slot::Laat() {
  if (IsGenomen()) CloseHandle(reinterpret_cast<HANDLE>(greep_));
  greep_ = kDicht;
}

#else

SysteemFout Slot::Probeer(const std::filesystem::path& map) {
  const int greep = ::open(map.empty() ? "." : map.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (greep < 0) return FoutVan({errno, std::generic_category()});
  const bool bezet = ::flock(greep, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  greep_ = greep;
  if (!bezet) return {};
  Laat();
  return FoutInGebruik();
}

void Slot::Laat() {
  if (IsGenomen()) ::close(static_cast<int>(greep_));
  greep_ = kDicht;
}

#endif

SysteemFout Slot::Neem(const std::filesystem::path& map, std::chrono::milliseconds geduld) {
  constexpr std::chrono::milliseconds kTussenpoos(10);
  Laat();
  const auto einde = std::chrono::steady_clock::now() + geduld;
  SysteemFout fout = Probeer(map);
  while (fout.tekst == FoutInGebruik().tekst && std::chrono::steady_clock::now() < einde) {
    std::this_thread::sleep_for(kTussenpoos);
    fout = Probeer(map);
  }
  return fout;
}

Slot::Slot(Slot&& ander) noexcept : greep_(std::exchange(ander.greep_, kDicht)) {}

Slot& Slot::operator=(Slot&& ander) noexcept {
  if (this != &ander) {
    Laat();
    greep_ = std::exchange(ander.greep_, kDicht);
  }
  return *this;
}

}  // namespace lb77
