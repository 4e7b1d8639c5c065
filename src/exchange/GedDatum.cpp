#include "exchange/GedDatum.h"

#include <algorithm>
#include <array>

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr DatumDelen kOnleesbaar{-1, 0, 0};

constexpr std::array<std::string_view, 12> kMaanden = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                       "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

struct Voorwoord {
  std::string_view woord;
  char correctie;
};
constexpr Voorwoord kVoorwoorden[] = {{"ABT", 'C'}, {"AFT", 'N'}, {"BEF", 'V'},
                                      {"BET", 'T'}, {"EST", 'C'}, {"CAL", 'C'}};

// 1 to 12; 0 for a word that is no month.
int Maand(std::string_view woord) {
  const auto plaats = std::find(kMaanden.begin(), kMaanden.end(), woord);
  return plaats == kMaanden.end() ? 0 : static_cast<int>(plaats - kMaanden.begin()) + 1;
}

std::string_view Stuk(std::string_view tekst, std::size_t begin, std::size_t lengte) {
  return begin < tekst.size() ? tekst.substr(begin, lengte) : std::string_view{};
}

// Where the parts of a text of one length stand, counted from 0; a length of 0 means there is none.
struct Vorm {
  std::size_t dag;  // its length: 0, 1 or 2; the month's word follows it
  std::size_t jaar;
  std::size_t jaarLengte;
};

DatumDelen Lees(std::string_view tekst, const Vorm& vorm) {
  const int maand = Maand(Stuk(tekst, vorm.dag, 3));
  if (maand == 0) return kOnleesbaar;
  return {Getalwaarde(tekst.substr(0, vorm.dag)), maand,
          Getalwaarde(Stuk(tekst, vorm.jaar, vorm.jaarLengte))};
}

DatumDelen AlleenJaar(std::string_view tekst) {
  return {0, 0, Getalwaarde(tekst.substr(0, 4))};
}

// ‘dd-mm-jjjj’
bool IsMetStreepjes(std::string_view tekst) {
  if (tekst.size() != 10 || tekst[2] != '-' || tekst[5] != '-') return false;
  for (std::size_t i = 0; i < tekst.size(); ++i) {
    if (i != 2 && i != 5 && !IsCijfer(tekst[i])) return false;
  }
  return true;
}

DatumDelen VanLengte(std::string_view t) {
  switch (t.size()) {
    case 3:
      return IsCijfer(t[0]) ? AlleenJaar(t) : Lees(t, {0, 3, 0});
    case 4:
      return AlleenJaar(t);
    case 6:
      return Lees(t, {0, 3, 3});
    case 7:
      return t[4] == '/' ? AlleenJaar(t) : Lees(t, {0, 3, 4});
    case 8:
      return IsCijfer(t[1]) ? Lees(t, {2, 5, 3}) : Lees(t, {1, 4, 4});
    case 9:
      return Lees(t, {2, 5, 4});
    case 10:
      return Lees(t, {0, 3, 4});
    case 11:
      return Lees(t, {1, 4, 4});
    case 12:
      return Lees(t, {2, 5, 4});
    default:
      return kOnleesbaar;
  }
}

// What stands behind the last digit says nothing.
std::string_view TotLaatsteCijfer(std::string_view tekst) {
  while (!tekst.empty() && !IsCijfer(tekst.back())) tekst.remove_suffix(1);
  return tekst;
}

std::string_view NeemVoorwoord(std::string_view tekst, char& correctie) {
  for (const Voorwoord& voorwoord : kVoorwoorden) {
    if (!BegintMet(tekst, voorwoord.woord)) continue;
    correctie = voorwoord.correctie;
    tekst.remove_prefix(voorwoord.woord.size());
    break;
  }
  if (!tekst.empty() && tekst.front() == '.') tekst.remove_prefix(1);
  return tekst;
}

}  // namespace

DatumDelen GedDatumDeel(std::string_view tekst) {
  const std::string_view schoon = Trim(tekst);
  if (schoon.empty()) return {0, 0, 0};
  if (IsMetStreepjes(schoon)) return OntleedDatum10(schoon);
  std::string zonderBlanco(schoon);
  std::erase(zonderBlanco, ' ');
  return VanLengte(zonderBlanco);
}

GedcomDatum GedDatum(std::string_view tekst, std::string_view context) {
  GedcomDatum uit;
  const std::string hoog = Hoofdletters(Trim(tekst));
  std::string_view rest = TotLaatsteCijfer(hoog);
  if (rest.size() < 3) return uit;
  rest = NeemVoorwoord(rest, uit.correctie);
  const auto meld = [&uit, tekst](std::string_view begin, std::string_view wat) {
    uit.meldingen.push_back(std::string(begin).append(wat).append(tekst));
  };
  const auto deel = [&meld, context](std::string_view stuk) {
    const DatumDelen datum = GedDatumDeel(stuk);
    if (datum.dag >= 0) return datum;
    meld(context, " - Onbekende datum: ");
    return DatumDelen{0, 0, 0};
  };
  const std::size_t en = rest.find(" AND");
  if (en != std::string_view::npos && uit.correctie != 'T') {
    uit.meldingen.push_back("Fout in datum: AND zonder BETWEEN " + std::string(rest));
  } else if (en != std::string_view::npos) {
    uit.een = deel(rest.substr(0, en));
    uit.twee = deel(rest.substr(en + 4));
  } else if (uit.correctie == 'T') {
    meld(context, " - Fout in datum: BETWEEN zonder AND met 2e datum ");
    uit.correctie = 'N';
  } else {
    uit.een = deel(rest);
  }
  return uit;
}

std::string GedDatumTekst(const DatumDelen& datum) {
  return NulGevuld(datum.dag, 2) + "-" + NulGevuld(datum.maand, 2) + "-" + NulGevuld(datum.jaar, 4);
}

}  // namespace lb77
