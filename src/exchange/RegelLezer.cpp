#include "exchange/RegelLezer.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ios>
#include <system_error>
#include <utility>

#include "store/StroomFout.h"
#include "text/Bestandstekst.h"

namespace lb77 {

namespace {

constexpr std::size_t kBlok = 256 * 1024;
constexpr std::string_view kVolgordeTeken = "\xEF\xBB\xBF";
constexpr std::string_view kVolgordeTekenLaag = "\xFF\xFE";
constexpr std::string_view kVolgordeTekenHoog = "\xFE\xFF";

Codering VolgordetekenVan(std::string_view begin) {
  if (begin.starts_with(kVolgordeTeken)) return Codering::Utf8;
  if (begin.starts_with(kVolgordeTekenLaag)) return Codering::Utf16Laag;
  return begin.starts_with(kVolgordeTekenHoog) ? Codering::Utf16Hoog : Codering::Bytes;
}

bool IsUtf16(Codering codering) {
  return codering == Codering::Utf16Laag || codering == Codering::Utf16Hoog;
}

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
  if (!bestand_) return FoutVanStroom(pad);
  blok_.resize(kBlok);
  codering_ = Codering::Bytes;
  Begin();
  volgordeteken_ = VolgordetekenVan(std::string_view(blok_.data(), eind_));
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

void RegelLezer::BeginMet(Codering codering) {
  codering_ = codering;
  Begin();
}

void RegelLezer::Begin() {
  bestand_.clear();
  bestand_.seekg(0);
  begin_ = eind_ = lineFeed_ = 0;
  naCR_ = uitgelezen_ = false;
  fout_ = {};
  tekens_ = {};
  utf16_ = Utf16Lezing(codering_ == Codering::Utf16Hoog ? Bytevolgorde::HoogEerst
                                                        : Bytevolgorde::LaagEerst);
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
  const std::size_t vanaf = eind_;
  eind_ += IsUtf16(codering_) ? LeesUtf16() : LeesBlok();
  lineFeed_ = Zoek(blok_, '\n', vanaf, eind_);
  return eind_ > vanaf;
}

std::size_t RegelLezer::LeesBlok() {
  if (blok_.size() - eind_ < kBlok / 2) blok_.resize(blok_.size() * 2);
  errno = 0;
  bestand_.read(blok_.data() + eind_, static_cast<std::streamsize>(blok_.size() - eind_));
  const auto gelezen = static_cast<std::size_t>(bestand_.gcount());
  if (bestand_.bad()) fout_ = FoutVanStroom();
  uitgelezen_ = !bestand_;
  return gelezen;
}

// A block is never so small that it gives no character, but at the end of the file.
std::size_t RegelLezer::LeesUtf16() {
  ruw_.resize(kBlok);
  errno = 0;
  bestand_.read(ruw_.data(), static_cast<std::streamsize>(ruw_.size()));
  const auto gelezen = static_cast<std::size_t>(bestand_.gcount());
  if (bestand_.bad()) fout_ = FoutVanStroom();
  uitgelezen_ = !bestand_;
  utf8_.clear();
  utf16_.Neem({ruw_.data(), gelezen}, utf8_);
  if (uitgelezen_) utf16_.Sluit(utf8_);
  while (blok_.size() - eind_ < utf8_.size()) blok_.resize(blok_.size() * 2);
  std::copy(utf8_.begin(), utf8_.end(), blok_.begin() + static_cast<std::ptrdiff_t>(eind_));
  return utf8_.size();
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

bool RegelLezer::Neem(std::size_t eind, std::size_t volgende) {
  bron_ = std::string_view(blok_.data() + begin_, eind - begin_);
  begin_ = volgende;
  return true;
}

bool RegelLezer::VolgendeBron() {
  if (IsAanEinde() || fout_) return false;
  for (;;) {
    ZoekLineFeed();
    const std::size_t cr = Zoek(blok_, '\r', begin_, lineFeed_);
    if (cr + 1 == lineFeed_ && lineFeed_ < eind_) return Neem(cr, cr + 2);
    if (cr < lineFeed_) {
      naCR_ = true;
      return Neem(cr, cr + 1);
    }
    if (lineFeed_ < eind_) return Neem(lineFeed_, lineFeed_ + 1);
    if (!Vul()) return !fout_ && Neem(eind_, eind_);
  }
}

// The last line in Windows-1252.
std::string_view RegelLezer::Omgezet() {
  tekens_.TelRegel();
  kwijt_.clear();
  if (IsAscii(bron_)) return bron_;
  BestandstekstNaarWindows(bron_, windows_, kwijt_);
  for (const char32_t teken : kwijt_) tekens_.Tel(teken);
  return windows_;
}

bool RegelLezer::Volgende(std::string_view& regel) {
  if (!VolgendeBron()) return false;
  regel = ZetOm() ? Omgezet() : bron_;
  return true;
}

}  // namespace lb77
