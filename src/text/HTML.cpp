#include "text/HTML.h"

#include <array>
#include <cstddef>

#include "text/Omzetting.h"

namespace lb77 {

namespace {

// kept: the apostrophe becomes "&quot;" and the quote passes, as readers of the pages know it.
constexpr std::array kTekens = {
    TekstRij{38, "&amp;"},
    TekstRij{39, "&quot;"},
    TekstRij{60, "&lt;"},
    TekstRij{62, "&gt;"},
};

constexpr std::size_t kEersteLetter = 192;

// Bytes 192 to 255; "" has no entity and passes. Source: the entity names of HTML 4 for Latin-1.
// kept: "&AEgil;" and "&uacut;" are no entities of HTML; the pages have always had them.
constexpr std::array<std::string_view, 64> kLetters = {
    "&Agrave;", "&Aacute;", "&Acirc;",  "&Atilde;", "&Auml;",   "&Aring;",  "&AEgil;", "&Ccedil;",
    "&Egrave;", "&Eacute;", "&Ecirc;",  "&Euml;",   "&Igrave;", "&Iacute;", "&Icirc;", "&Iuml;",
    "",         "&Ntilde;", "&Ograve;", "&Oacute;", "&Ocirc;",  "&Otilde;", "&Ouml;",  "",
    "",         "&Ugrave;", "&Uacute;", "&Ucirc;",  "&Uuml;",   "&Yacute;", "",        "&szlig;",
    "&agrave;", "&aacute;", "&acirc;",  "&atilde;", "&auml;",   "&aring;",  "&aelig;", "&ccedil;",
    "&egrave;", "&eacute;", "&ecirc;",  "&euml;",   "&igrave;", "&iacute;", "&icirc;", "&iuml;",
    "",         "&ntilde;", "&ograve;", "&oacute;", "&ocirc;",  "&otilde;", "&ouml;",  "",
    "",         "&ugrave;", "&uacut;",  "&ucirc;",  "&uuml;",   "&yacute;", "",        "&yuml;",
};

consteval TekstTabel MaakNaarHTML() {
  TekstTabel tabel = OngewijzigdeTeksten();
  for (const TekstRij& rij : kTekens) tabel[rij.byte] = rij.wordt;
  for (std::size_t i = 0; i < kLetters.size(); ++i) {
    if (!kLetters[i].empty()) tabel[kEersteLetter + i] = kLetters[i];
  }
  return tabel;
}

constexpr TekstTabel kNaarHTML = MaakNaarHTML();

}  // namespace

std::string TekstNaarHTML(std::string_view tekst) {
  return ZetOm(tekst, kNaarHTML);
}

}  // namespace lb77
