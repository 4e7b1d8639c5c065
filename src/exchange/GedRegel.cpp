#include "exchange/GedRegel.h"

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr int kMaxNiveau = 99;

// Puts the tag and the value behind it in `uit`; without a value the tag is the trimmed rest.
void SplitsTag(std::string_view rest, GedcomRegel& uit) {
  const std::size_t blanco = rest.find(' ');
  if (blanco == std::string_view::npos || blanco + 1 == rest.size()) {
    uit.tag = TrimRechts(rest);
  } else {
    uit.tag = rest.substr(0, blanco);
    uit.waarde = rest.substr(blanco + 1);
  }
}

bool IsId(std::string_view woord) {
  return woord.size() >= 2 && woord.front() == '@' && woord.back() == '@';
}

}  // namespace

GedcomRegel GedRegel(std::string_view regel) {
  GedcomRegel uit;
  const std::string_view tekst = TrimLinks(regel);
  const std::size_t p = tekst.find(' ');
  if (p == std::string_view::npos || p + 1 == tekst.size()) {
    uit.fout = "GEDCOM Fout: Regel begint niet met een levelnummer";
    return uit;
  }
  const std::int32_t niveau = Getalwaarde(tekst.substr(0, p));
  if ((niveau < 1 && tekst.front() != '0') || niveau > kMaxNiveau || niveau < 0) {
    uit.fout = "GEDCOM Fout: Onjuist levelnummer";
    return uit;
  }
  uit.niveau = niveau;
  SplitsTag(tekst.substr(p + 1), uit);
  if (!uit.waarde.empty() && IsId(uit.tag)) {
    uit.id = uit.tag.substr(1, uit.tag.size() - 2);
    const std::string_view rest = uit.waarde;
    uit.waarde = {};
    SplitsTag(rest, uit);
  }
  if (uit.tag == "CHARSET") uit.tag = "CHAR";
  return uit;
}

}  // namespace lb77
