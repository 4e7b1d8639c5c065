#include "exchange/Ged551Regels.h"

#include <algorithm>
#include <cstddef>

#include "text/Getallen.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

constexpr std::string_view kVolgordeTeken = "\xEF\xBB\xBF";
constexpr std::size_t kRegeleinde = 2;
constexpr char kWis = 127;

bool IsStuurteken(char teken) {
  const auto byte = static_cast<unsigned char>(teken);
  return byte < 32 || teken == kWis;
}

std::size_t Breedte(char teken) {
  return teken == '@' ? 2 : 1;
}

// How many characters go on a line that has room for `ruimte`. Blanks at the begin and the end of a
// line get lost in other programs, so that it is cut between two letters when there are any.
std::size_t Stuk(std::string_view tekst, std::size_t ruimte) {
  std::size_t lengte = 0;
  for (std::size_t breedte = 0; lengte < tekst.size(); ++lengte) {
    breedte += Breedte(tekst[lengte]);
    if (breedte > ruimte) break;
  }
  if (lengte == tekst.size()) return lengte;
  std::size_t knip = lengte;
  while (knip > 0 && (tekst[knip - 1] == ' ' || tekst[knip] == ' ')) --knip;
  return knip > 0 ? knip : lengte;
}

std::string Verdubbeld(std::string_view tekst) {
  std::string uit;
  for (const char teken : tekst) uit.append(Breedte(teken), teken);
  return uit;
}

std::string Kop(int level, std::string_view tag) {
  return GetalTekst(level) + " " + std::string(tag);
}

std::string Id(char soort, std::int16_t nr) {
  return "@" + std::string(1, soort) + GetalTekst(nr) + "@";
}

}  // namespace

bool Ged551Regels::HeeftTekst(std::string_view waarde) {
  return std::ranges::any_of(waarde,
                             [](char teken) { return teken != ' ' && !IsStuurteken(teken); });
}

void Ged551Regels::Begin() {
  uit_.Regel(std::string(kVolgordeTeken) + "0 HEAD");
}

void Ged551Regels::Regel(int level, std::string_view tag, std::string_view waarde) {
  TelEigen(tag);
  std::string schoon(waarde);
  for (char& teken : schoon) {
    if (!IsStuurteken(teken)) continue;
    teken = ' ';
    ++stuurtekens_;
  }
  std::string_view rest = Trim(schoon);
  std::string kop = Kop(level, tag);
  const std::string vervolg = Kop(tag == "CONT" ? level : level + 1, "CONC");
  do {
    const std::size_t lengte = Stuk(rest, kGed551Regel - kRegeleinde - kop.size() - 1);
    Schrijf(kop, rest.substr(0, lengte));
    rest.remove_prefix(lengte);
    kop = vervolg;
  } while (!rest.empty());
}

void Ged551Regels::Schrijf(std::string_view begin, std::string_view waarde) {
  std::string regel(begin);
  if (!waarde.empty()) regel.append(" ").append(WindowsNaarUtf8(Verdubbeld(waarde)));
  uit_.Regel(regel);
}

void Ged551Regels::TelEigen(std::string_view tag) {
  if (tag.starts_with(kEigenTag)) ++eigen_[std::string(tag)];
}

void Ged551Regels::Record(char soort, std::int16_t nr, std::string_view tag) {
  TelEigen(tag);
  uit_.Regel("0 " + Id(soort, nr) + " " + std::string(tag));
}

void Ged551Regels::Verwijzing(int level, std::string_view tag, char soort, std::int16_t nr) {
  TelEigen(tag);
  uit_.Regel(Kop(level, tag) + " " + Id(soort, nr));
}

}  // namespace lb77
