#include "store/Platform.h"

#include <cstdlib>
#include <string>
#include <system_error>
#include <utility>

#include "store/PlatformNamen.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace lb77 {

namespace {

constexpr const char* kNaam = "lb77";

#ifdef _WIN32

SysteemFout LaatsteFout() {
  return FoutVan({static_cast<int>(GetLastError()), std::system_category()});
}

HANDLE Systeem(std::intptr_t greep) {
  return reinterpret_cast<HANDLE>(greep);
}

OVERLAPPED PlekVan(std::uint64_t plaats) {
  OVERLAPPED plek{};
  plek.Offset = static_cast<DWORD>(plaats & 0xFFFFFFFFU);
  plek.OffsetHigh = static_cast<DWORD>(plaats >> 32U);
  return plek;
}

// One call of the system: the bytes read, -1 after an error.
std::ptrdiff_t LeesStuk(std::intptr_t greep, std::uint64_t plaats, std::span<char> doel) {
  OVERLAPPED plek = PlekVan(plaats);
  DWORD gelezen = 0;
  if (ReadFile(Systeem(greep), doel.data(), static_cast<DWORD>(doel.size()), &gelezen, &plek)) {
    return static_cast<std::ptrdiff_t>(gelezen);
  }
  return GetLastError() == ERROR_HANDLE_EOF ? 0 : -1;
}

std::ptrdiff_t SchrijfStuk(std::intptr_t greep, std::uint64_t plaats, std::span<const char> bron) {
  OVERLAPPED plek = PlekVan(plaats);
  DWORD geschreven = 0;
  const BOOL gelukt =
      WriteFile(Systeem(greep), bron.data(), static_cast<DWORD>(bron.size()), &geschreven, &plek);
  return gelukt ? static_cast<std::ptrdiff_t>(geschreven) : -1;
}

bool IsOnderbroken() {
  return false;
}

DWORD RechtenVan(Openwijze wijze) {
  return wijze == Openwijze::AlleenLezen ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
}

DWORD MakenVan(Openwijze wijze) {
  switch (wijze) {
    case Openwijze::Nieuw:
      return CREATE_NEW;
    case Openwijze::AlleenLezen:
      return OPEN_EXISTING;
    case Openwijze::MaakZonodig:
      break;
  }
  return OPEN_ALWAYS;
}

#else

SysteemFout LaatsteFout() {
  // The standard library has no name for a disk quota that is used up.
  if (errno == EDQUOT) errno = ENOSPC;
  return FoutVan({errno, std::generic_category()});
}

int Systeem(std::intptr_t greep) {
  return static_cast<int>(greep);
}

// One call of the system: the bytes read, -1 after an error.
std::ptrdiff_t LeesStuk(std::intptr_t greep, std::uint64_t plaats, std::span<char> doel) {
  return ::pread(Systeem(greep), doel.data(), doel.size(), static_cast<off_t>(plaats));
}

std::ptrdiff_t SchrijfStuk(std::intptr_t greep, std::uint64_t plaats, std::span<const char> bron) {
  return ::pwrite(Systeem(greep), bron.data(), bron.size(), static_cast<off_t>(plaats));
}

bool IsOnderbroken() {
  return errno == EINTR;
}

int VlaggenVan(Openwijze wijze) {
  switch (wijze) {
    case Openwijze::Nieuw:
      return O_RDWR | O_CREAT | O_EXCL;
    case Openwijze::AlleenLezen:
      return O_RDONLY | O_NONBLOCK;  // a pipe that nobody writes to is opened too
    case Openwijze::MaakZonodig:
      break;
  }
  return O_RDWR | O_CREAT;
}

SysteemFout NaarSchijf(int greep) {
  // Some file systems have nothing to bring to a disk and say so.
  if (::fsync(greep) == 0 || errno == EINVAL || errno == ENOSYS) return {};
  return LaatsteFout();
}

#endif

// What the call that has just been made came to.
Roepuitslag Gedaan(std::ptrdiff_t bytes) {
  if (bytes >= 0) return {bytes};
  const bool onderbroken = IsOnderbroken();
  return {bytes, onderbroken, LaatsteFout()};
}

}  // namespace

#ifdef _WIN32

SysteemFout Bestandsgreep::Open(const std::filesystem::path& pad, Openwijze wijze) {
  Sluit();
  if (IsTeLang(pad)) return FoutVan(std::make_error_code(std::errc::filename_too_long));
  HANDLE greep = CreateFileW(pad.c_str(), RechtenVan(wijze), FILE_SHARE_READ | FILE_SHARE_WRITE,
                             nullptr, MakenVan(wijze), FILE_ATTRIBUTE_NORMAL, nullptr);
  if (greep == INVALID_HANDLE_VALUE) {
    SysteemFout fout = LaatsteFout();
    // The system has one answer for a directory and for what may not be touched.
    const DWORD kenmerken = GetFileAttributesW(pad.c_str());
    const bool isMap =
        kenmerken != INVALID_FILE_ATTRIBUTES && (kenmerken & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return isMap ? FoutVan(std::make_error_code(std::errc::is_a_directory)) : fout;
  }
  greep_ = reinterpret_cast<std::intptr_t>(greep);
  if (wijze != Openwijze::AlleenLezen || GetFileType(greep) == FILE_TYPE_DISK) return {};
  Sluit();
  return FoutGeenBestand();
}

void Bestandsgreep::Sluit() {
  if (IsOpen()) CloseHandle(Systeem(greep_));
  greep_ = kDicht;
  vergrendeld_ = false;
}

std::uint64_t Bestandsgreep::Lengte() const {
  LARGE_INTEGER lengte{};
  if (!IsOpen() || !GetFileSizeEx(Systeem(greep_), &lengte)) return 0;
  return static_cast<std::uint64_t>(lengte.QuadPart);
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the file
SysteemFout Bestandsgreep::Veiligstellen() {
  if (!IsOpen()) return FoutNietOpen();
  return FlushFileBuffers(Systeem(greep_)) ? SysteemFout{} : LaatsteFout();
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the file
SysteemFout Bestandsgreep::Kap(std::uint64_t lengte) {
  if (!IsOpen()) return FoutNietOpen();
  LARGE_INTEGER plek{};
  plek.QuadPart = static_cast<LONGLONG>(lengte);
  if (!SetFilePointerEx(Systeem(greep_), plek, nullptr, FILE_BEGIN)) return LaatsteFout();
  return SetEndOfFile(Systeem(greep_)) ? SysteemFout{} : LaatsteFout();
}

std::int64_t Bestandsgreep::Wijzigtijd() const {
  FILETIME tijd{};
  if (!IsOpen() || !GetFileTime(Systeem(greep_), nullptr, nullptr, &tijd)) return 0;
  return (static_cast<std::int64_t>(tijd.dwHighDateTime) << 32) | tijd.dwLowDateTime;
}

SysteemFout Bestandsgreep::Vergrendel() {
  if (!IsOpen()) return FoutNietOpen();
  // Who has it may ask again, which the system itself refuses.
  if (vergrendeld_) return {};
  // One byte far behind any record: a lock here keeps others from what it covers.
  OVERLAPPED plek = PlekVan(std::uint64_t{1} << 40U);
  if (LockFileEx(Systeem(greep_), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                 &plek)) {
    vergrendeld_ = true;
    return {};
  }
  if (GetLastError() == ERROR_LOCK_VIOLATION) {
    return FoutInGebruik();
  }
  return GetLastError() == ERROR_NOT_SUPPORTED ? SysteemFout{} : LaatsteFout();
}

// Names need no help to reach the disk there.
SysteemFout MapVeiligstellen(const std::filesystem::path& map) {
  const wchar_t* naam = map.empty() ? L"." : map.c_str();
  return GetFileAttributesW(naam) == INVALID_FILE_ATTRIBUTES ? LaatsteFout() : SysteemFout{};
}

std::filesystem::path ProgrammaMap() {
  std::wstring naam(32768, L'\0');
  const DWORD lengte = GetModuleFileNameW(nullptr, naam.data(), static_cast<DWORD>(naam.size()));
  if (lengte == 0) return std::filesystem::current_path();
  naam.resize(lengte);
  return std::filesystem::path(naam).parent_path();
}

std::filesystem::path GebruikersDataMap() {
  const wchar_t* lokaal = _wgetenv(L"LOCALAPPDATA");
  if (lokaal != nullptr && *lokaal != L'\0') return std::filesystem::path(lokaal) / kNaam;
  return ProgrammaMap();
}

#else

SysteemFout Bestandsgreep::Open(const std::filesystem::path& pad, Openwijze wijze) {
  Sluit();
  const int greep = ::open(pad.c_str(), VlaggenVan(wijze) | O_CLOEXEC, 0666);
  if (greep < 0) return LaatsteFout();
  greep_ = greep;
  if (wijze != Openwijze::AlleenLezen) return {};
  struct stat gegevens {};
  if (::fstat(greep, &gegevens) == 0 && S_ISREG(gegevens.st_mode)) return {};
  Sluit();
  return S_ISDIR(gegevens.st_mode) ? FoutVan(std::make_error_code(std::errc::is_a_directory))
                                   : FoutGeenBestand();
}

void Bestandsgreep::Sluit() {
  if (IsOpen()) ::close(Systeem(greep_));
  greep_ = kDicht;
  vergrendeld_ = false;
}

std::uint64_t Bestandsgreep::Lengte() const {
  struct stat gegevens {};
  if (!IsOpen() || ::fstat(Systeem(greep_), &gegevens) != 0) return 0;
  return static_cast<std::uint64_t>(gegevens.st_size);
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the file
SysteemFout Bestandsgreep::Veiligstellen() {
  if (!IsOpen()) return FoutNietOpen();
  return NaarSchijf(Systeem(greep_));
}

SysteemFout MapVeiligstellen(const std::filesystem::path& map) {
  const int greep = ::open(map.empty() ? "." : map.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (greep < 0) return LaatsteFout();
  SysteemFout fout = NaarSchijf(greep);
  ::close(greep);
  return fout;
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the file
SysteemFout Bestandsgreep::Kap(std::uint64_t lengte) {
  if (!IsOpen()) return FoutNietOpen();
  while (::ftruncate(Systeem(greep_), static_cast<off_t>(lengte)) != 0) {
    if (!IsOnderbroken()) return LaatsteFout();
  }
  return {};
}

std::int64_t Bestandsgreep::Wijzigtijd() const {
  struct stat gegevens {};
  if (!IsOpen() || ::fstat(Systeem(greep_), &gegevens) != 0) return 0;
  constexpr std::int64_t kPerSeconde = 1000000000;
#ifdef __APPLE__
  const timespec& tijd = gegevens.st_mtimespec;
#else
  const timespec& tijd = gegevens.st_mtim;
#endif
  return static_cast<std::int64_t>(tijd.tv_sec) * kPerSeconde + tijd.tv_nsec;
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes the file
SysteemFout Bestandsgreep::Vergrendel() {
  if (!IsOpen()) return FoutNietOpen();
  while (::flock(Systeem(greep_), LOCK_EX | LOCK_NB) != 0) {
    if (errno == EWOULDBLOCK) {
      return FoutInGebruik();
    }
    if (errno == ENOLCK || errno == ENOSYS || errno == EOPNOTSUPP) break;
    if (!IsOnderbroken()) return LaatsteFout();
  }
  vergrendeld_ = true;
  return {};
}

std::filesystem::path ProgrammaMap() {
  std::error_code fout;
  const std::filesystem::path programma = std::filesystem::read_symlink("/proc/self/exe", fout);
  return fout ? std::filesystem::current_path(fout) : programma.parent_path();
}

std::filesystem::path GebruikersDataMap() {
  const char* xdg = std::getenv("XDG_DATA_HOME");
  // A relative path in it is to be ignored, says its definition.
  if (xdg != nullptr && *xdg == '/') return std::filesystem::path(xdg) / kNaam;
  const char* thuis = std::getenv("HOME");
  if (thuis == nullptr || *thuis == '\0') return ProgrammaMap();
#ifdef __APPLE__
  return std::filesystem::path(thuis) / "Library" / "Application Support" / kNaam;
#else
  return std::filesystem::path(thuis) / ".local" / "share" / kNaam;
#endif
}

#endif

Bestandsgreep::~Bestandsgreep() {
  Sluit();
}

Bestandsgreep::Bestandsgreep(Bestandsgreep&& ander) noexcept
    : greep_(std::exchange(ander.greep_, kDicht)),
      vergrendeld_(std::exchange(ander.vergrendeld_, false)) {}

Bestandsgreep& Bestandsgreep::operator=(Bestandsgreep&& ander) noexcept {
  if (this != &ander) {
    Sluit();
    greep_ = std::exchange(ander.greep_, kDicht);
    vergrendeld_ = std::exchange(ander.vergrendeld_, false);
  }
  return *this;
}

Leesuitslag Bestandsgreep::Lees(std::uint64_t plaats, std::span<char> doel) const {
  if (!IsOpen()) return {0, FoutNietOpen()};
  return LeesInStukken(plaats, doel, [this](std::uint64_t vanaf, std::span<char> waarin) {
    return Gedaan(LeesStuk(greep_, vanaf, waarin));
  });
}

SysteemFout Bestandsgreep::Schrijf(std::uint64_t plaats, std::span<const char> bron) {
  if (!IsOpen()) return FoutNietOpen();
  return SchrijfInStukken(plaats, bron, [this](std::uint64_t vanaf, std::span<const char> wat) {
    return Gedaan(SchrijfStuk(greep_, vanaf, wat));
  });
}

}  // namespace lb77
