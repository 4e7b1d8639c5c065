#include "store/PlatformUitvoer.h"

#include <algorithm>
#include <utility>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// Behind the header that it builds on.
#include <shellapi.h>
#else
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
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

// Writes lines to a window of the command line as its own characters.
class Vensterbuffer final : public std::streambuf {
 public:
  explicit Vensterbuffer(HANDLE venster) : venster_(venster) {}
  ~Vensterbuffer() override { Leeg(); }

 protected:
  int_type overflow(int_type teken) override {
    if (traits_type::eq_int_type(teken, traits_type::eof())) return traits_type::not_eof(teken);
    const char byte = traits_type::to_char_type(teken);
    return xsputn(&byte, 1) == 1 ? teken : traits_type::eof();
  }
  std::streamsize xsputn(const char* bytes, std::streamsize aantal) override {
    const std::string_view nieuw(bytes, static_cast<std::size_t>(aantal));
    for (const char byte : nieuw) byte == '\n' ? wacht_ += "\r\n" : wacht_ += byte;
    const bool regel = nieuw.find('\n') != std::string_view::npos;
    return (!regel && wacht_.size() < kStuk) || Leeg() ? aantal : 0;
  }
  int sync() override { return Leeg() ? 0 : -1; }

 private:
  static constexpr std::size_t kStuk = 4096;  // far below what the system takes at once

  bool Leeg() {
    std::size_t klaar = 0;
    bool gelukt = true;
    while (gelukt) {
      const std::string_view rest = std::string_view(wacht_).substr(klaar, kStuk);
      const std::size_t lengte = HeleTekens(rest);
      if (lengte == 0) break;
      gelukt = Schrijf(rest.substr(0, lengte));
      klaar += lengte;
    }
    wacht_.erase(0, klaar);
    return gelukt;
  }
  bool Schrijf(std::string_view utf8) {
    const int bytes = static_cast<int>(utf8.size());
    std::wstring tekst(utf8.size(), L'\0');  // no character takes more units than bytes
    const int lengte = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, tekst.data(), bytes);
    DWORD geschreven = 0;
    return WriteConsoleW(venster_, tekst.data(), static_cast<DWORD>(lengte), &geschreven, nullptr);
  }

  HANDLE venster_;
  std::string wacht_;
};

}  // namespace

// What main is given there has lost each character that the code page of the system lacks.
std::vector<std::string> Opdrachtwoorden(int argc, const char* const* argv) {
  int aantal = 0;
  LPWSTR* const woorden = CommandLineToArgvW(GetCommandLineW(), &aantal);
  if (woorden == nullptr) return {argv, argv + argc};
  std::vector<std::string> uit;
  uit.reserve(static_cast<std::size_t>(aantal));
  for (int i = 0; i < aantal; ++i) uit.push_back(NaarUtf8(woorden[i]));
  LocalFree(woorden);
  return uit;
}

Opdrachtvenster::Opdrachtvenster(std::ostream& uit, std::ostream& fout) {
  for (auto [stroom, soort] : {std::pair(&uit, STD_OUTPUT_HANDLE), {&fout, STD_ERROR_HANDLE}}) {
    const HANDLE venster = GetStdHandle(soort);
    DWORD wijze = 0;
    if (!GetConsoleMode(venster, &wijze)) continue;  // a file, or another program
    stroom->flush();
    auto buffer = std::make_unique<Vensterbuffer>(venster);
    std::streambuf* const vorige = stroom->rdbuf(buffer.get());
    omleidingen_.push_back({stroom, vorige, std::move(buffer)});
  }
}

Opdrachtvenster::~Opdrachtvenster() {
  for (const Omleiding& omleiding : omleidingen_) omleiding.stroom->rdbuf(omleiding.vorige);
}

// Files get no place among the standard streams here.
void VulStandaardstromen() {}

// A write fails there, and ends no program.
void OverleefVertrokkenLezer() {}

// Nothing else makes it fail.
bool LezerIsVertrokken() {
  return GetFileType(GetStdHandle(STD_OUTPUT_HANDLE)) == FILE_TYPE_PIPE;
}

#else

std::vector<std::string> Opdrachtwoorden(int argc, const char* const* argv) {
  return {argv, argv + argc};
}

// It shows what it is told to.
Opdrachtvenster::Opdrachtvenster(std::ostream&, std::ostream&) {}
Opdrachtvenster::~Opdrachtvenster() = default;

// The lowest one that is closed is what the next opening gets. It is for reading: a write to it fails,
// and is told like that to a full disk.
void VulStandaardstromen() {
  for (const int stroom : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    const bool dicht = ::fcntl(stroom, F_GETFD) == -1 && errno == EBADF;
    if (dicht && ::open("/dev/null", O_RDONLY) != stroom) ::_exit(1);
  }
}

void OverleefVertrokkenLezer() {
  std::signal(SIGPIPE, SIG_IGN);
}

// A pipe without a reader is in error, which a full disk is not.
bool LezerIsVertrokken() {
  pollfd uitvoer{.fd = STDOUT_FILENO, .events = POLLOUT, .revents = 0};
  return ::poll(&uitvoer, 1, 0) > 0 && (uitvoer.revents & POLLERR) != 0;
}

#endif

std::size_t HeleTekens(std::string_view utf8) {
  constexpr std::size_t kLangste = 4;  // bytes of a character
  const auto deel = [&](std::size_t achter) {
    return static_cast<unsigned char>(utf8[utf8.size() - achter]);
  };
  for (std::size_t achter = 1; achter <= std::min(kLangste, utf8.size()); ++achter) {
    const unsigned byte = deel(achter);
    if (byte < 0x80) break;
    if (byte < 0xC0) continue;  // a further byte of a character
    const std::size_t lengte = byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
    return achter < lengte ? utf8.size() - achter : utf8.size();
  }
  return utf8.size();
}

}  // namespace lb77
