#include "store/PlatformNamen.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <chrono>
#include <thread>
#endif

namespace lb77 {

#ifdef _WIN32

namespace {

constexpr int kPogingen = 50;
constexpr std::chrono::milliseconds kTussenpoos(10);

// Told of a file that somebody has open, and of one that may never be touched.
bool IsGeweigerd(const std::error_code& code) {
  const bool isOpen =
      code.category() == std::system_category() && code.value() == ERROR_SHARING_VIOLATION;
  return isOpen || code == std::errc::permission_denied;
}

}  // namespace

bool VerwijderVanSchijf(const std::filesystem::path& pad, std::error_code& code) {
  if (std::filesystem::remove(pad, code)) return true;
  // The library's last attempt is that of a file, which a directory answers with a refusal.
  std::error_code onbekend;
  if (code && std::filesystem::is_directory(pad, onbekend) &&
      !std::filesystem::is_empty(pad, onbekend)) {
    code = std::make_error_code(std::errc::directory_not_empty);
  }
  return false;
}

void HernoemOpSchijf(const std::filesystem::path& van, const std::filesystem::path& naar,
                     std::error_code& code) {
  std::filesystem::rename(van, naar, code);
  std::error_code onbekend;
  if (IsGeweigerd(code) && std::filesystem::is_directory(naar, onbekend)) {
    code = std::make_error_code(std::errc::is_a_directory);
    return;
  }
  for (int poging = 1; IsGeweigerd(code) && poging < kPogingen; ++poging) {
    std::this_thread::sleep_for(kTussenpoos);
    std::filesystem::rename(van, naar, code);
  }
}

#else

bool VerwijderVanSchijf(const std::filesystem::path& pad, std::error_code& code) {
  return std::filesystem::remove(pad, code);
}

void HernoemOpSchijf(const std::filesystem::path& van, const std::filesystem::path& naar,
                     std::error_code& code) {
  std::filesystem::rename(van, naar, code);
}

#endif

}  // namespace lb77
