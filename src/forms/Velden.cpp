#include "forms/Velden.h"

#include "text/Pad.h"
#include "text/Tekens.h"

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

}  // namespace lb77
