#include "text/Pad.h"

#include "text/Unicode.h"

namespace lb77 {

namespace {

// Of a name with half characters, which Windows can have: the rest of it.
std::string Leesbaar(const std::filesystem::path& pad) {
  std::string tekst;
  for (const auto teken : pad.native()) {
    tekst += teken >= 32 && teken < 127 ? static_cast<char>(teken) : '?';
  }
  return tekst;
}

}  // namespace

std::string PadTekst(const std::filesystem::path& pad) {
  try {
    const std::u8string tekst = pad.u8string();
    return Utf8NaarWindowsRuim(std::string(tekst.begin(), tekst.end()));
  } catch (const std::filesystem::filesystem_error&) {
    return Leesbaar(pad);
  }
}

std::filesystem::path PadVan(std::string_view tekst) {
  const std::string utf8 = WindowsNaarUtf8(tekst);
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

}  // namespace lb77
