#include "exchange/GedRegel.h"

#include <cstddef>
#include <cstdint>
#include <optional>

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kGeenLevel = "GEDCOM Fout: Regel begint niet met een levelnummer";
constexpr std::string_view kFoutLevel = "GEDCOM Fout: Onjuist levelnummer";

// The first blank, when there is something behind it.
std::optional<std::size_t> Scheiding(std::string_view tekst) {
  const std::size_t plaats = tekst.find(' ');
  if (plaats == std::string_view::npos || plaats + 1 == tekst.size()) return std::nullopt;
  return plaats;
}

bool IsId(std::string_view woord) {
  return woord.starts_with('@') && woord.ends_with('@');
}

// "@I1@" without its signs; a lone "@" has nothing between them.
std::string_view ZonderTekens(std::string_view woord) {
  return woord.size() < 2 ? std::string_view() : woord.substr(1, woord.size() - 2);
}

}  // namespace

GedDelen GedRegel(std::string_view regel) {
  regel = TrimLinks(regel);
  GedDelen delen;
  const std::optional<std::size_t> p = Scheiding(regel);
  if (!p) {
    delen.fout = kGeenLevel;
    return delen;
  }
  const std::int32_t level = Getalwaarde(regel.substr(0, *p));
  if ((level < 1 && regel.front() != '0') || level > kHoogsteLevel) {
    delen.fout = kFoutLevel;
    return delen;
  }
  delen.level = level;
  std::string_view rest = regel.substr(*p + 1);
  std::optional<std::size_t> q = Scheiding(rest);
  if (q && IsId(rest.substr(0, *q))) {
    delen.id = ZonderTekens(rest.substr(0, *q));
    rest.remove_prefix(*q + 1);
    q = Scheiding(rest);
  }
  delen.tag = q ? rest.substr(0, *q) : TrimRechts(rest);
  if (q) delen.waarde = rest.substr(*q + 1);
  delen.tag = delen.tag.substr(0, kLangsteTag);
  if (delen.tag == "CHARSET") delen.tag = "CHAR";
  return delen;
}

}  // namespace lb77
