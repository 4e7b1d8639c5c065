#include "text/Namen.h"

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

struct Woorden {
  std::string_view eerste;
  std::string_view rest;
};

Woorden SplitsEersteWoord(std::string_view tekst) {
  const std::size_t blank = tekst.find(' ');
  return {tekst.substr(0, blank), Trim(tekst.substr(blank + 1))};
}

bool HeeftBlank(std::string_view tekst) {
  return tekst.find(' ') != std::string_view::npos;
}

bool StaatIn(std::string_view lijst, std::string_view woord) {
  while (!lijst.empty() && !woord.empty()) {
    const std::size_t komma = lijst.find(',');
    if (GelijkZonderKast(Trim(lijst.substr(0, komma)), woord)) return true;
    if (komma == std::string_view::npos) break;
    lijst.remove_prefix(komma + 1);
  }
  return false;
}

PlaatsDelen SplitsOpHaakje(std::string_view tekst, std::size_t haakje, char sluiter) {
  const std::size_t einde = tekst.find(sluiter, haakje + 1);
  const std::size_t lengte = einde == std::string_view::npos ? einde : einde - haakje - 1;
  PlaatsDelen delen;
  delen.prov = Hoofdletters(Trim(tekst.substr(haakje + 1, lengte)));
  delen.tekst = Trim(tekst.substr(0, haakje));
  if (delen.tekst.empty()) delen.tekst.swap(delen.prov);
  return delen;
}

PlaatsDelen SplitsOpKomma(std::string_view tekst) {
  PlaatsDelen delen;
  const std::size_t komma = tekst.find(',');
  delen.tekst = Trim(tekst.substr(0, komma));
  if (komma == std::string_view::npos) return delen;
  const std::string_view achter = tekst.substr(komma + 1);
  const std::size_t laatste = achter.rfind(',');
  delen.prov = Trim(achter.substr(0, laatste));
  if (laatste != std::string_view::npos) delen.rest = Trim(achter.substr(laatste + 1));
  return delen;
}

}  // namespace

std::string NaamSorteer(std::string_view naam, const Voorvoegsels& voorvoegsels) {
  if (!HeeftBlank(naam)) return std::string(naam);
  const Woorden eerst = SplitsEersteWoord(naam);
  if (!StaatIn(voorvoegsels.Voor1, eerst.eerste)) return std::string(naam);
  const std::string achter = ", " + KleineLetters(eerst.eerste);
  if (!HeeftBlank(eerst.rest)) return std::string(eerst.rest) + achter;
  const Woorden tweede = SplitsEersteWoord(eerst.rest);
  std::string sorteer = std::string(tweede.rest) + achter;
  // kept: a second word that is no prefix drops out; nothing but the sort form relies on it.
  if (!StaatIn(voorvoegsels.Voor2, tweede.eerste)) return sorteer;
  return sorteer + " " + KleineLetters(tweede.eerste);
}

std::string Links(std::string_view tekst, std::size_t breedte, std::string_view vul) {
  std::string uit(tekst.substr(0, breedte));
  uit.resize(breedte, vul.empty() ? ' ' : vul.front());
  return uit;
}

std::string Rechts(std::string_view tekst, std::size_t breedte, char vul) {
  if (tekst.size() >= breedte) return std::string(tekst.substr(tekst.size() - breedte));
  return std::string(breedte - tekst.size(), vul) + std::string(tekst);
}

std::string Kolom(std::int64_t waarde, std::size_t breedte, Richting richting) {
  const std::string tekst = GetalTekst(waarde);
  return richting == Richting::Rechts ? Rechts(tekst, breedte) : Links(tekst, breedte);
}

PlaatsDelen SplitsPlaats(std::string_view tekst) {
  constexpr std::string_view kOpeners = "({[<";
  constexpr std::string_view kSluiters = ")}]>";
  for (std::size_t i = 0; i < kOpeners.size(); ++i) {
    const std::size_t haakje = tekst.find(kOpeners[i]);
    if (haakje != std::string_view::npos) return SplitsOpHaakje(tekst, haakje, kSluiters[i]);
  }
  return SplitsOpKomma(tekst);
}

}  // namespace lb77
