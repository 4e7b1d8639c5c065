#include "forms/Velden.h"

#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {

char AlleenCijfers(char teken) {
  return IsCijfer(teken) ? teken : '\0';
}

char InHoofdletters(char teken) {
  return Hoofdletter(teken);
}

std::filesystem::path Padvak::Pad() const {
  const std::string_view tekst = Trim(Tekst());
  return tekst == Trim(getoond_) ? pad_ : PadVan(tekst);
}

void Padvak::ZetPad(const std::filesystem::path& pad) {
  pad_ = pad;
  getoond_ = PadTekst(pad);
  ZetTekst(getoond_);
}

std::string PadTekst(const std::filesystem::path& pad) {
  const std::u8string tekst = pad.u8string();
  return Utf8NaarWindowsRuim(std::string(tekst.begin(), tekst.end()));
}

std::filesystem::path PadVan(std::string_view tekst) {
  const std::string utf8 = WindowsNaarUtf8(tekst);
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

}  // namespace lb77
