#include "text/Tekens.h"

#include <algorithm>

namespace lb77 {

std::string Hoofdletters(std::string_view tekst) {
  std::string uit(tekst);
  for (char& teken : uit) teken = Hoofdletter(teken);
  return uit;
}

std::string KleineLetters(std::string_view tekst) {
  std::string uit(tekst);
  for (char& teken : uit) teken = KleineLetter(teken);
  return uit;
}

bool GelijkZonderKast(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Hoofdletter(x) == Hoofdletter(y); });
}

}  // namespace lb77
