#include "text/Pad.h"

#include "text/Unicode.h"

namespace lb77 {

std::string PadTekst(const std::filesystem::path& pad) {
  const std::u8string tekst = pad.u8string();
  return Utf8NaarWindowsRuim(std::string(tekst.begin(), tekst.end()));
}

std::filesystem::path PadVan(std::string_view tekst) {
  const std::string utf8 = WindowsNaarUtf8(tekst);
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

}  // namespace lb77
