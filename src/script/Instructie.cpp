#include "script/Instructie.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "script/Toetsnaam.h"
#include "script/Verslag.h"
#include "text/Getallen.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

// A reason why the line cannot be read, in UTF-8; empty when it can.
using Reden = std::string;

// The name that an instruction takes.
enum class Naam { Geen, Mag, Moet };

// One row of the language: the word, its kind, its name, and the reader of what stands behind.
struct Vorm {
  std::string_view woord;
  InstructieSoort soort;
  Naam naam;
  Reden (*lees)(Instructie&, std::string_view);
};

std::string_view TrimWit(std::string_view tekst) {
  const auto isWit = [](char teken) { return teken == ' ' || teken == '\t' || teken == '\r'; };
  while (!tekst.empty() && isWit(tekst.front())) tekst.remove_prefix(1);
  while (!tekst.empty() && isWit(tekst.back())) tekst.remove_suffix(1);
  return tekst;
}

// Takes the first word off `rest`.
std::string_view NeemWoord(std::string_view& rest) {
  const std::size_t eind = std::min(rest.find_first_of(" \t"), rest.size());
  const std::string_view woord = rest.substr(0, eind);
  rest = TrimWit(rest.substr(eind));
  return woord;
}

// The character behind a backslash, undone; 0 when it is none of the language.
char Ontsnapt(char teken) {
  if (teken == 'n') return '\n';
  return teken == '"' || teken == '\\' ? teken : '\0';
}

// A text in quotes, undone. Nothing when a quote or an escape is wrong.
std::optional<std::string> ZonderAanhaling(std::string_view tekst) {
  std::string uit;
  for (std::size_t i = 1; i < tekst.size(); ++i) {
    if (tekst[i] == '"') return i + 1 == tekst.size() ? std::optional(uit) : std::nullopt;
    if (tekst[i] != '\\') {
      uit += tekst[i];
      continue;
    }
    const char teken = ++i < tekst.size() ? Ontsnapt(tekst[i]) : '\0';
    if (!teken) return std::nullopt;
    uit += teken;
  }
  return std::nullopt;
}

Reden NeemArgument(Instructie& instructie, std::string_view rest) {
  instructie.aangehaald = BegintMet(rest, "\"");
  if (!instructie.aangehaald) {
    instructie.argument = rest;
    return {};
  }
  const auto tekst = ZonderAanhaling(rest);
  if (!tekst) return "de aanhalingstekens kloppen niet: " + std::string(rest);
  instructie.argument = *tekst;
  return {};
}

Reden LeesNiets(Instructie&, std::string_view rest) {
  return rest.empty() ? Reden() : "hier hoort niets achter: " + std::string(rest);
}

Reden LeesTekst(Instructie& instructie, std::string_view rest) {
  Reden reden = NeemArgument(instructie, rest);
  if (!reden.empty()) return reden;
  auto tekst = Utf8NaarWindows(instructie.argument);
  if (!tekst) return "deze tekst past niet in Windows-1252: " + std::string(rest);
  instructie.argument = std::move(*tekst);
  return {};
}

Reden LeesWaarde(Instructie& instructie, std::string_view rest) {
  if (rest.empty()) return "de waarde ontbreekt";
  return LeesTekst(instructie, rest);
}

Reden LeesToets(Instructie& instructie, std::string_view rest) {
  std::string_view toets = NeemWoord(rest);
  if (!rest.empty()) {
    instructie.naam = toets;
    toets = rest;
  }
  const auto gevonden = ToetsVanNaam(toets);
  if (!gevonden) return "onbekende toets: " + std::string(toets);
  instructie.toets = *gevonden;
  return {};
}

Reden LeesAntwoorden(Instructie& instructie, std::string_view rest) {
  if (rest.empty()) return "het antwoord ontbreekt";
  while (!rest.empty()) {
    const std::string_view woord = NeemWoord(rest);
    const auto antwoord = AntwoordVan(woord);
    if (!antwoord) return "onbekend antwoord: " + std::string(woord);
    instructie.antwoorden.push_back(*antwoord);
  }
  return {};
}

Reden LeesAantal(Instructie& instructie, std::string_view rest) {
  const bool cijfers = std::all_of(rest.begin(), rest.end(), IsCijfer);
  instructie.aantal = Getalwaarde(rest);
  if (!cijfers || instructie.aantal < 1) return "geen aantal vanaf 1: " + std::string(rest);
  return {};
}

constexpr std::array kVormen = {
    Vorm{"kies", InstructieSoort::Kies, Naam::Moet, LeesNiets},
    Vorm{"vul", InstructieSoort::Vul, Naam::Moet, LeesTekst},
    Vorm{"typ", InstructieSoort::Typ, Naam::Moet, LeesTekst},
    Vorm{"druk", InstructieSoort::Druk, Naam::Moet, LeesNiets},
    Vorm{"dubbelklik", InstructieSoort::Dubbelklik, Naam::Moet, LeesNiets},
    Vorm{"toets", InstructieSoort::Toets, Naam::Geen, LeesToets},
    Vorm{"stel", InstructieSoort::Stel, Naam::Moet, LeesWaarde},
    Vorm{"antwoord", InstructieSoort::Antwoord, Naam::Geen, LeesAntwoorden},
    Vorm{"bestand", InstructieSoort::Bestand, Naam::Geen, NeemArgument},
    Vorm{"onderbreek", InstructieSoort::Onderbreek, Naam::Geen, LeesAantal},
    Vorm{"toon", InstructieSoort::Toon, Naam::Mag, LeesNiets},
    Vorm{"sluit", InstructieSoort::Sluit, Naam::Geen, LeesNiets},
};

Reden LeesRegel(Instructie& instructie, std::string_view rest) {
  const std::string_view woord = NeemWoord(rest);
  const auto* const vorm = std::find_if(kVormen.begin(), kVormen.end(),
                                        [&](const Vorm& rij) { return rij.woord == woord; });
  if (vorm == kVormen.end()) return "onbekende instructie: " + std::string(woord);
  instructie.soort = vorm->soort;
  if (vorm->naam != Naam::Geen) instructie.naam = NeemWoord(rest);
  if (vorm->naam == Naam::Moet && instructie.naam.empty()) return "de naam ontbreekt";
  return vorm->lees(instructie, rest);
}

}  // namespace

Draaiboek LeesDraaiboek(std::string_view utf8) {
  constexpr std::string_view kMerk = "\xEF\xBB\xBF";  // some editors begin a file with it
  if (BegintMet(utf8, kMerk)) utf8.remove_prefix(kMerk.size());
  Draaiboek boek;
  for (int nr = 1; !utf8.empty(); ++nr) {
    const std::size_t eind = std::min(utf8.find('\n'), utf8.size());
    const std::string_view regel = TrimWit(utf8.substr(0, eind));
    utf8.remove_prefix(std::min(eind + 1, utf8.size()));
    if (regel.empty() || regel.front() == '#') continue;
    Instructie instructie;
    instructie.regel = nr;
    instructie.tekst = regel;
    const Reden reden = LeesRegel(instructie, regel);
    if (!reden.empty()) return {{}, OpRegel(nr, reden)};
    boek.instructies.push_back(std::move(instructie));
  }
  return boek;
}

bool IsKlaarzetten(InstructieSoort soort) {
  return soort == InstructieSoort::Antwoord || soort == InstructieSoort::Bestand ||
         soort == InstructieSoort::Onderbreek;
}

}  // namespace lb77
