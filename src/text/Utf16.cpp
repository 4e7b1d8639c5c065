#include "text/Utf16.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

char32_t Utf16Lezing::Eenheid(char een, char twee) const {
  const bool laagEerst = volgorde_ == Bytevolgorde::LaagEerst;
  const auto hoog = static_cast<unsigned char>(laagEerst ? twee : een);
  const auto laag = static_cast<unsigned char>(laagEerst ? een : twee);
  return static_cast<char32_t>((unsigned{hoog} << 8U) | laag);
}

void Utf16Lezing::Neem(std::string_view bytes, std::string& utf8) {
  if (half_ && !bytes.empty()) {
    half_ = false;
    NeemEenheid(Eenheid(eerste_, bytes.front()), utf8);
    bytes.remove_prefix(1);
  }
  while (bytes.size() > 1) {
    if (hoog_ == 0) NeemAscii(bytes, utf8);
    if (bytes.size() < 2) break;
    NeemEenheid(Eenheid(bytes[0], bytes[1]), utf8);
    bytes.remove_prefix(2);
  }
  if (bytes.empty()) return;
  half_ = true;
  eerste_ = bytes.front();
}

// Takes characters below 128 off, four at a time: most of a file is made of them.
void Utf16Lezing::NeemAscii(std::string_view& bytes, std::string& utf8) const {
  constexpr std::size_t kStuk = 8;
  const bool laagEerst = volgorde_ == Bytevolgorde::LaagEerst;
  const std::size_t laag = laagEerst ? 0 : 1;
  const std::string_view masker =
      laagEerst ? "\x80\xFF\x80\xFF\x80\xFF\x80\xFF" : "\xFF\x80\xFF\x80\xFF\x80\xFF\x80";
  std::uint64_t bits = 0;
  std::memcpy(&bits, masker.data(), kStuk);
  std::size_t plaats = 0;
  for (; bytes.size() - plaats >= kStuk; plaats += kStuk) {
    std::uint64_t stuk = 0;
    std::memcpy(&stuk, bytes.data() + plaats, kStuk);
    if ((stuk & bits) != 0) break;
    const char* const eerste = bytes.data() + plaats + laag;
    const std::array tekens{eerste[0], eerste[2], eerste[4], eerste[6]};
    utf8.append(tekens.data(), tekens.size());
  }
  bytes.remove_prefix(plaats);
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
