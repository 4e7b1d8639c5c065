#include "store/PlatformUitvoer.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// Behind the header that it builds on.
#include <shellapi.h>
#else
#include <poll.h>
#include <unistd.h>

#include <csignal>
#endif

namespace lb77 {

#ifdef _WIN32

namespace {

std::string NaarUtf8(const wchar_t* tekst) {
  const int lengte = WideCharToMultiByte(CP_UTF8, 0, tekst, -1, nullptr, 0, nullptr, nullptr);
  if (lengte <= 1) return {};
  std::string utf8(static_cast<std::size_t>(lengte), '\0');
  WideCharToMultiByte(CP_UTF8, 0, tekst, -1, utf8.data(), lengte, nullptr, nullptr);
  utf8.pop_back();  // the NUL
  return utf8;
}

}  // namespace

// What main is given there has lost each character that the code page of the system lacks.
std::vector<std::string> Opdrachtwoorden(int argc, const char* const* argv) {
  int aantal = 0;
  LPWSTR* const woorden = CommandLineToArgvW(GetCommandLineW(), &aantal);
  if (woorden == nullptr) return {argv, argv + argc};
  std::vector<std::string> uit;
  for (int i = 0; i < aantal; ++i) uit.push_back(NaarUtf8(woorden[i]));
  LocalFree(woorden);
  return uit;
}

Opdrachtvenster::Opdrachtvenster() : vorige_(GetConsoleOutputCP()) {
  if (vorige_ != 0) SetConsoleOutputCP(CP_UTF8);
}

Opdrachtvenster::~Opdrachtvenster() {
  if (vorige_ != 0) SetConsoleOutputCP(vorige_);
}

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

std::vector<std::string> Opdrachtwoorden(int argc, const char* const* argv) {
  return {argv, argv + argc};
}

// It shows what it is told to.
Opdrachtvenster::Opdrachtvenster() = default;
Opdrachtvenster::~Opdrachtvenster() = default;

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
