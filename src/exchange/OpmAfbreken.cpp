#include "exchange/OpmAfbreken.h"

#include <cstddef>

#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kRegelBreedte = 80;

// The line that a text without leading blanks begins with.
std::string_view EersteRegel(std::string_view tekst) {
  const std::string_view stuk = tekst.substr(0, kRegelBreedte);
  if (stuk.size() == tekst.size() || tekst[stuk.size()] == ' ') return TrimRechts(stuk);
  const std::size_t blanco = stuk.rfind(' ');
  return blanco == std::string_view::npos ? std::string_view() : TrimRechts(stuk.substr(0, blanco));
}

// Takes the lines off, and leaves what does not fit: behind a word that makes no line all are empty.
OpmRegels Neem(std::string_view& tekst) {
  OpmRegels regels;
  for (std::string& regel : regels) {
    tekst = TrimLinks(tekst);
    regel = EersteRegel(tekst);
    tekst.remove_prefix(regel.size());
  }
  tekst = TrimLinks(tekst);
  return regels;
}

}  // namespace

OpmRegels BreekAf(std::string_view tekst) {
  return Neem(tekst);
}

bool PastGeheel(std::string_view tekst) {
  static_cast<void>(Neem(tekst));
  return tekst.empty();
}

}  // namespace lb77
