#include "text/Utf16.h"

#include <utility>

#include "text/Utf8Uit.h"

namespace lb77 {

namespace {

constexpr char32_t kVervanging = 0xFFFD;
// The ranges of the halves of a pair are of this size.
constexpr char32_t kEersteHoog = 0xD800;
constexpr char32_t kEersteLaag = 0xDC00;
constexpr char32_t kHelften = 0x400;
constexpr char32_t kEerstePaar = 0x10000;

constexpr bool IsHoog(char32_t eenheid) {
  return eenheid >= kEersteHoog && eenheid < kEersteHoog + kHelften;
}

constexpr bool IsLaag(char32_t eenheid) {
  return eenheid >= kEersteLaag && eenheid < kEersteLaag + kHelften;
}

}  // namespace

void Utf16Lezing::Neem(std::string_view bytes, std::string& utf8) {
  for (const char teken : bytes) {
    const auto byte = static_cast<unsigned char>(teken);
    half_ = !half_;
    if (half_) {
      eerste_ = byte;
      continue;
    }
    const bool laagEerst = volgorde_ == Bytevolgorde::LaagEerst;
    const char32_t hoog = laagEerst ? byte : eerste_;
    const char32_t laag = laagEerst ? eerste_ : byte;
    NeemEenheid((hoog << 8U) | laag, utf8);
  }
}

void Utf16Lezing::NeemEenheid(char32_t eenheid, std::string& utf8) {
  const char32_t hoog = std::exchange(hoog_, 0);
  if (hoog != 0 && IsLaag(eenheid)) {
    const char32_t paar = (hoog - kEersteHoog) * kHelften + (eenheid - kEersteLaag);
    VoegUtf8Toe(utf8, kEerstePaar + paar);
    return;
  }
  if (hoog != 0) VoegUtf8Toe(utf8, kVervanging);
  if (IsHoog(eenheid)) {
    hoog_ = eenheid;
  } else {
    VoegUtf8Toe(utf8, IsLaag(eenheid) ? kVervanging : eenheid);
  }
}

void Utf16Lezing::Sluit(std::string& utf8) {
  if (hoog_ != 0) VoegUtf8Toe(utf8, kVervanging);
  hoog_ = 0;
  half_ = false;
}

}  // namespace lb77
