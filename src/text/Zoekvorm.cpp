#include "text/Zoekvorm.h"

#include <array>
#include <cstdint>
#include <initializer_list>

#include "text/Accenten.h"
#include "text/Letterlijk.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

// What one character becomes; the second is 0 for most.
using Letters = std::array<char, 2>;
using Tabel = std::array<Letters, 256>;

constexpr std::size_t Plaats(char teken) {
  return static_cast<std::uint8_t>(teken);
}

constexpr void ZetKaal(Tabel& tabel, const Accentletters& accent) {
  for (std::size_t i = 0; i < accent.letters.size(); ++i) {
    tabel[Plaats(accent.letters[i])] = {KleineLetter(accent.kaal[i]), '\0'};
  }
}

constexpr void ZetElk(Tabel& tabel, std::string_view tekens, Letters letters) {
  for (const char teken : tekens) tabel[Plaats(teken)] = letters;
}

constexpr Tabel MaakTabel() {
  Tabel tabel{};
  for (std::size_t i = 0; i < tabel.size(); ++i) {
    tabel[i] = {KleineLetter(static_cast<char>(i)), '\0'};
  }
  for (const Accentletters& accent :
       {kGravis, kAcutus, kCircumflex, kTilde, kUmlaut, kRing, kCedille, kHacekS, kHacekZ}) {
    ZetKaal(tabel, accent);
  }
  ZetElk(tabel, "Øø"_w, {'o', '\0'});
  ZetElk(tabel, "Ðð"_w, {'d', '\0'});
  ZetElk(tabel, "‘’´`"_w, {'\'', '\0'});
  ZetElk(tabel, "ß"_w, {'s', 's'});
  ZetElk(tabel, "Ææ"_w, {'a', 'e'});
  ZetElk(tabel, "Œœ"_w, {'o', 'e'});
  ZetElk(tabel, "Þþ"_w, {'t', 'h'});
  return tabel;
}

constexpr Tabel kTabel = MaakTabel();

std::string_view LettersVan(char teken) {
  const Letters& letters = kTabel[Plaats(teken)];
  return {letters.data(), letters[1] ? std::size_t{2} : std::size_t{1}};
}

// How many characters of the text have a form that begins with `vorm`; 0 when it does not.
std::size_t Begin(std::string_view tekst, std::string_view vorm) {
  for (std::size_t i = 0; i < tekst.size(); ++i) {
    const std::string_view letters = LettersVan(tekst[i]);
    if (vorm.size() <= letters.size()) return letters.starts_with(vorm) ? i + 1 : 0;
    if (!vorm.starts_with(letters)) return 0;
    vorm.remove_prefix(letters.size());
  }
  return 0;
}

}  // namespace

std::string Zoekvorm(std::string_view tekst) {
  std::string uit;
  uit.reserve(tekst.size());
  for (const char teken : tekst) uit += LettersVan(teken);
  return uit;
}

Zoekplek VindVorm(std::string_view tekst, std::string_view vorm, std::size_t vanaf) {
  if (vorm.empty()) return {};
  for (std::size_t i = vanaf; i < tekst.size(); ++i) {
    if (const std::size_t lengte = Begin(tekst.substr(i), vorm)) return {i, lengte};
  }
  return {};
}

}  // namespace lb77
