#include "store/PlatformNamen.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <chrono>
#include <string>
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

// Does `doe`, again and again while somebody has the file open.
template <typename Doe>
void MetGeduld(Doe doe, std::error_code& code) {
  doe();
  for (int poging = 1; IsGeweigerd(code) && poging < kPogingen; ++poging) {
    std::this_thread::sleep_for(kTussenpoos);
    doe();
  }
}

bool HeeftKenmerk(const std::filesystem::path& pad, DWORD kenmerk) {
  const DWORD kenmerken = GetFileAttributesW(pad.c_str());
  return kenmerken != INVALID_FILE_ATTRIBUTES && (kenmerken & kenmerk) != 0;
}

// A file that may only be read is not removed there.
void MaakSchrijfbaar(const std::filesystem::path& pad) {
  const DWORD kenmerken = GetFileAttributesW(pad.c_str());
  if (kenmerken == INVALID_FILE_ATTRIBUTES || (kenmerken & FILE_ATTRIBUTE_READONLY) == 0) return;
  SetFileAttributesW(pad.c_str(), kenmerken & ~DWORD{FILE_ATTRIBUTE_READONLY});
}

// Of the system's own: the library takes what leads to another directory for that directory.
std::error_code VerwijderKoppeling(const std::filesystem::path& pad) {
  const bool weg = HeeftKenmerk(pad, FILE_ATTRIBUTE_DIRECTORY) ? RemoveDirectoryW(pad.c_str())
                                                               : DeleteFileW(pad.c_str());
  return weg ? std::error_code()
             : std::error_code(static_cast<int>(GetLastError()), std::system_category());
}

bool IsVolleMap(const std::filesystem::path& pad) {
  std::error_code onbekend;
  return std::filesystem::is_directory(pad, onbekend) &&
         !std::filesystem::is_empty(pad, onbekend) && !onbekend;
}

// The whole path as the system reads it: without "." and "..", dots and blanks at the end of a name
// left out, and a device behind \\.\ in front.
std::wstring Voluit(const std::filesystem::path& pad) {
  const DWORD ruimte = GetFullPathNameW(pad.c_str(), 0, nullptr, nullptr);
  std::wstring uit(ruimte, L'\0');
  uit.resize(GetFullPathNameW(pad.c_str(), ruimte, uit.data(), nullptr));
  return uit;
}

}  // namespace

bool IsKoppeling(const std::filesystem::path& pad) {
  return HeeftKenmerk(pad, FILE_ATTRIBUTE_REPARSE_POINT);
}

bool VerwijderVanSchijf(const std::filesystem::path& pad, std::error_code& code) {
  code.clear();
  if (IsKoppeling(pad)) return !(code = VerwijderKoppeling(pad));
  // The library's last attempt is that of a file, which a directory answers with a refusal.
  if (IsVolleMap(pad)) {
    code = std::make_error_code(std::errc::directory_not_empty);
    return false;
  }
  MaakSchrijfbaar(pad);
  bool weg = false;
  MetGeduld([&] { weg = std::filesystem::remove(pad, code); }, code);
  return weg;
}

void VerwijderMapVanSchijf(const std::filesystem::path& map, std::error_code& code) {
  code.clear();
  if (HeeftKenmerk(map, FILE_ATTRIBUTE_DIRECTORY) && !IsKoppeling(map)) {
    std::filesystem::directory_iterator plek(map, code);
    while (!code && plek != std::filesystem::directory_iterator()) {
      const std::filesystem::path pad = plek->path();
      plek.increment(code);
      if (!code) VerwijderMapVanSchijf(pad, code);
    }
  }
  if (!code) static_cast<void>(VerwijderVanSchijf(map, code));
}

void HernoemOpSchijf(const std::filesystem::path& van, const std::filesystem::path& naar,
                     std::error_code& code) {
  std::filesystem::rename(van, naar, code);
  if (!IsGeweigerd(code)) return;
  if (HeeftKenmerk(naar, FILE_ATTRIBUTE_DIRECTORY)) {
    code = std::make_error_code(std::errc::is_a_directory);
    return;
  }
  MetGeduld([&] { std::filesystem::rename(van, naar, code); }, code);
}

bool IsZelfdeNaam(const std::filesystem::path& een, const std::filesystem::path& ander) {
  const std::wstring a = Voluit(een);
  const std::wstring b = Voluit(ander);
  return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                              static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}

bool IsTeLang(const std::filesystem::path& pad) {
  return Voluit(pad).size() >= MAX_PATH;
}

bool IsApparaat(const std::filesystem::path& pad) {
  return Voluit(pad).starts_with(L"\\\\.\\");
}

#else

bool IsKoppeling(const std::filesystem::path& pad) {
  std::error_code code;
  return std::filesystem::is_symlink(pad, code);
}

bool VerwijderVanSchijf(const std::filesystem::path& pad, std::error_code& code) {
  return std::filesystem::remove(pad, code);
}

void VerwijderMapVanSchijf(const std::filesystem::path& map, std::error_code& code) {
  std::filesystem::remove_all(map, code);
}

void HernoemOpSchijf(const std::filesystem::path& van, const std::filesystem::path& naar,
                     std::error_code& code) {
  std::filesystem::rename(van, naar, code);
}

bool IsZelfdeNaam(const std::filesystem::path& een, const std::filesystem::path& ander) {
  return een == ander;
}

bool IsTeLang(const std::filesystem::path&) {
  return false;
}

bool IsApparaat(const std::filesystem::path& pad) {
  std::error_code code;
  return std::filesystem::exists(pad, code) && !std::filesystem::is_regular_file(pad, code) &&
         !std::filesystem::is_directory(pad, code);
}

#endif

}  // namespace lb77
