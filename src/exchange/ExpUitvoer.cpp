#include "exchange/ExpUitvoer.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ios>
#include <system_error>
#include <utility>

#include "store/StroomFout.h"

namespace lb77 {

namespace {

constexpr std::size_t kBlok = std::size_t{64} * 1024;
constexpr std::string_view kRegeleinde = "\r\n";

bool IsStuurteken(char teken) {
  return static_cast<unsigned char>(teken) < ' ';
}

bool IsStuurtekenInKolom(char teken) {
  return teken != '\t' && IsStuurteken(teken);
}

// Is there any byte below 32? Eight at a time, as nearly no text has one.
bool HeeftStuurteken(std::string_view tekst) {
  constexpr std::uint64_t kEnen = 0x0101010101010101;
  constexpr std::uint64_t kHoogste = kEnen * 0x80;
  for (; tekst.size() >= sizeof(std::uint64_t); tekst.remove_prefix(sizeof(std::uint64_t))) {
    std::uint64_t acht = 0;
    std::memcpy(&acht, tekst.data(), sizeof(acht));
    if (((acht - kEnen * ' ') & ~acht & kHoogste) != 0) return true;
  }
  return std::ranges::any_of(tekst, IsStuurteken);
}

}  // namespace

std::string ZonderStuurtekens(std::string_view tekst) {
  std::string uit(tekst);
  std::ranges::replace_if(uit, IsStuurteken, ' ');
  return uit;
}

template <class IsBlanco>
void ExpUitvoer::Voeg(std::string_view regel, const IsBlanco& isBlanco) {
  if (fout_) return;
  if (HeeftStuurteken(regel)) {
    zuiver_ = regel;
    std::ranges::replace_if(zuiver_, isBlanco, ' ');
    regel = zuiver_;
  }
  Schrijf(regel);
}

void ExpUitvoer::Regel(std::string_view regel) {
  Voeg(regel, [](char teken) { return IsStuurteken(teken); });
}

void ExpUitvoer::Kolommen(std::string_view regel) {
  Voeg(regel, [](char teken) { return IsStuurtekenInKolom(teken); });
}

void ExpUitvoer::OnthoudFout(SysteemFout fout) {
  if (!fout_) fout_ = std::move(fout);
}

ExpBestand::~ExpBestand() {
  Leeg();
}

SysteemFout ExpBestand::Open(const std::filesystem::path& pad) {
  std::error_code code;
  const std::filesystem::file_status staat = std::filesystem::status(pad, code);
  if (std::filesystem::is_directory(staat)) {
    return FoutVan(std::make_error_code(std::errc::is_a_directory));
  }
  // Opening a pipe would wait for its reader.
  if (std::filesystem::is_fifo(staat)) return FoutGeenBestand();
  errno = 0;
  bestand_.open(pad, std::ios::binary | std::ios::trunc);
  return bestand_ ? SysteemFout{} : FoutVanStroom(pad);
}

SysteemFout ExpBestand::Toets(const std::filesystem::path& pad) {
  errno = 0;
  const std::fstream bestand(pad, std::ios::binary | std::ios::in | std::ios::out);
  return bestand ? SysteemFout{} : FoutVanStroom(pad);
}

SysteemFout ExpBestand::Sluit() {
  Leeg();
  if (bestand_.is_open()) {
    errno = 0;
    bestand_.close();
    if (!bestand_) OnthoudFout(FoutVanStroom());
  }
  return Fout();
}

void ExpBestand::Schrijf(std::string_view regel) {
  buffer_.append(regel).append(kRegeleinde);
  if (buffer_.size() >= kBlok) Leeg();
}

void ExpBestand::Leeg() {
  if (buffer_.empty() || !bestand_.is_open()) return;
  errno = 0;
  bestand_.write(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
  bestand_.flush();
  buffer_.clear();
  if (!bestand_) OnthoudFout(FoutVanStroom());
}

}  // namespace lb77
