#include "exchange/RegelLezer.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ios>
#include <system_error>
#include <utility>

#include "exchange/StroomFout.h"

namespace lb77 {

namespace {

constexpr std::size_t kBlok = 256 * 1024;
constexpr std::string_view kVolgordeTeken = "\xEF\xBB\xBF";

// The place of a byte in [van, tot); `tot` when it is not there.
std::size_t Zoek(const std::vector<char>& blok, char teken, std::size_t van, std::size_t tot) {
  if (van == tot) return tot;
  const void* gevonden = std::memchr(blok.data() + van, teken, tot - van);
  if (gevonden == nullptr) return tot;
  return static_cast<std::size_t>(static_cast<const char*>(gevonden) - blok.data());
}

}  // namespace

SysteemFout RegelLezer::Open(const std::filesystem::path& pad) {
  Sluit();
  std::error_code code;
  if (std::filesystem::is_directory(pad, code)) {
    return FoutVan(std::make_error_code(std::errc::is_a_directory));
  }
  // The blocks are large enough by themselves.
  bestand_.rdbuf()->pubsetbuf(nullptr, 0);
  errno = 0;
  bestand_.open(pad, std::ios::binary);
  if (!bestand_) return StroomFout();
  blok_.resize(kBlok);
  Begin();
  return fout_;
}

void RegelLezer::Sluit() {
  bestand_.close();
  bestand_.clear();
  begin_ = eind_ = lineFeed_ = 0;
  naCR_ = false;
  uitgelezen_ = true;
  fout_ = {};
}

void RegelLezer::Begin() {
  bestand_.clear();
  bestand_.seekg(0);
  begin_ = eind_ = lineFeed_ = 0;
  naCR_ = uitgelezen_ = false;
  fout_ = {};
  static_cast<void>(Vul());
  if (std::string_view(blok_.data(), eind_).starts_with(kVolgordeTeken)) {
    begin_ = kVolgordeTeken.size();
  }
}

// Reads a block behind what is left of the last one. False when nothing came.
bool RegelLezer::Vul() {
  if (uitgelezen_) return false;
  std::copy(blok_.begin() + static_cast<std::ptrdiff_t>(begin_),
            blok_.begin() + static_cast<std::ptrdiff_t>(eind_), blok_.begin());
  eind_ -= begin_;
  begin_ = 0;
  if (blok_.size() - eind_ < kBlok / 2) blok_.resize(blok_.size() * 2);
  errno = 0;
  bestand_.read(blok_.data() + eind_, static_cast<std::streamsize>(blok_.size() - eind_));
  const auto gelezen = static_cast<std::size_t>(bestand_.gcount());
  if (bestand_.bad()) fout_ = StroomFout();
  uitgelezen_ = !bestand_;
  const std::size_t vanaf = eind_;
  eind_ += gelezen;
  lineFeed_ = Zoek(blok_, '\n', vanaf, eind_);
  return gelezen > 0;
}

void RegelLezer::SlaLineFeedOver() {
  if (!naCR_) return;
  if (begin_ == eind_ && !Vul()) return;
  naCR_ = false;
  if (blok_[begin_] == '\n') ++begin_;
}

void RegelLezer::ZoekLineFeed() {
  if (lineFeed_ < begin_) lineFeed_ = Zoek(blok_, '\n', begin_, eind_);
}

bool RegelLezer::IsAanEinde() {
  SlaLineFeedOver();
  return begin_ == eind_ && !Vul();
}

void RegelLezer::Breek(SysteemFout fout) {
  fout_ = std::move(fout);
}

bool RegelLezer::Neem(std::size_t eind, std::size_t volgende, std::string_view& regel) {
  regel = std::string_view(blok_.data() + begin_, eind - begin_);
  begin_ = volgende;
  return true;
}

bool RegelLezer::Volgende(std::string_view& regel) {
  if (IsAanEinde() || fout_) return false;
  for (;;) {
    ZoekLineFeed();
    const std::size_t cr = Zoek(blok_, '\r', begin_, lineFeed_);
    if (cr + 1 == lineFeed_ && lineFeed_ < eind_) return Neem(cr, cr + 2, regel);
    if (cr < lineFeed_) {
      naCR_ = true;
      return Neem(cr, cr + 1, regel);
    }
    if (lineFeed_ < eind_) return Neem(lineFeed_, lineFeed_ + 1, regel);
    if (!Vul()) return !fout_ && Neem(eind_, eind_, regel);
  }
}

}  // namespace lb77
