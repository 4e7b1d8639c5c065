#include "exchange/GedDatumWoorden.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "exchange/GedBepaling.h"
#include "text/Datum.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"
#include "text/Maanden.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

using Woorden = std::vector<std::string_view>;

// Each month in full and as it is shortened, a blank around each word.
constexpr std::array<std::string_view, 12> kNamen = {
    " JAN JANUARY JANUARI JANUAR JÄN JÄNNER JAENNER JANV JANVIER "_w,
    " FEB FEBR FEBRUARY FEBRUARI FEBRUAR FEBER FÉV FÉVR FÉVRIER FEV FEVR FEVRIER "_w,
    " MAR MARCH MRT MAART MÄR MÄRZ MRZ MAERZ MARS "_w,
    " APR APRIL AVR AVRIL ",
    " MAY MEI MAI ",
    " JUN JUNE JUNI JUIN ",
    " JUL JULY JULI JUIL JUILLET ",
    " AUG AUGUST AUGUSTUS AOÛT AOUT "_w,
    " SEP SEPT SEPTEMBER SEPTEMBRE ",
    " OCT OCTOBER OKT OKTOBER OCTOBRE ",
    " NOV NOVEMBER NOVEMBRE ",
    " DEC DECEMBER DEZ DEZEMBER DÉC DÉCEMBRE DECEMBRE "_w,
};

std::string_view ZonderPunt(std::string_view woord) {
  if (woord.ends_with('.')) woord.remove_suffix(1);
  return woord;
}

bool IsGetal(std::string_view tekst, std::size_t minste, std::size_t meeste) {
  return tekst.size() >= minste && tekst.size() <= meeste && std::ranges::all_of(tekst, IsCijfer);
}

// The three letters of the standard for the name of a month; empty for any other word.
std::string_view Maand(std::string_view woord) {
  woord = ZonderPunt(woord);
  if (woord.empty() || !std::ranges::all_of(woord, IsLetter)) return {};
  const std::string gezocht = " " + std::string(woord) + " ";
  for (std::size_t i = 0; i < kNamen.size(); ++i) {
    if (kNamen[i].find(gezocht) != std::string_view::npos) return kGedMaanden[i];
  }
  return {};
}

// A year, with or without that of the other style behind it: ‘1750’, ‘1750/51’.
bool IsJaar(std::string_view woord) {
  return IsGetal(woord.substr(0, woord.find('/')), 3, 4);
}

bool BegintMetCijfer(const Woorden& woorden, std::size_t plaats) {
  return plaats < woorden.size() && IsCijfer(woorden[plaats].front());
}

// May a date begin here: with the text, behind a qualifier or behind AND? What stands before it
// otherwise, such as ‘na’, would go with nobody being told.
bool BegintHierDatum(const Woorden& woorden, std::size_t plaats) {
  if (plaats == 0 || woorden[plaats - 1] == "AND") return true;
  const std::string_view voor = ZonderPunt(woorden[plaats - 1]);
  return std::ranges::all_of(voor, IsLetter) &&
         std::ranges::any_of(kGedBepalingen, [voor](const GedBepaling& bepaling) {
           return voor.starts_with(bepaling.woord);
         });
}

// Is the word a month with its year behind it, and at most a day before it?
bool StaatAlsMaand(const Woorden& woorden, std::size_t plaats) {
  if (Maand(woorden[plaats]).empty() || plaats + 1 == woorden.size()) return false;
  if (!IsJaar(woorden[plaats + 1]) || BegintMetCijfer(woorden, plaats + 2)) return false;
  if (plaats == 0 || !BegintMetCijfer(woorden, plaats - 1)) return BegintHierDatum(woorden, plaats);
  return IsGetal(ZonderPunt(woorden[plaats - 1]), 1, 2) && BegintHierDatum(woorden, plaats - 1);
}

// The three numbers of a text with two of that separator.
std::optional<std::array<std::string_view, 3>> Drietal(std::string_view tekst, char scheider) {
  const std::size_t een = tekst.find(scheider);
  if (een == std::string_view::npos) return std::nullopt;
  const std::size_t twee = tekst.find(scheider, een + 1);
  if (twee == std::string_view::npos) return std::nullopt;
  return std::array{tekst.substr(0, een), tekst.substr(een + 1, twee - een - 1),
                    tekst.substr(twee + 1)};
}

// A day that exists in the form of the standard; a part that is 0 is not known.
std::optional<std::string> Standaard(std::string_view dag, std::string_view maand,
                                     std::string_view jaar) {
  const std::string tekst = std::string(dag).append("-").append(maand).append("-").append(jaar);
  const std::int32_t d = Getalwaarde(dag);
  const std::int32_t m = Getalwaarde(maand);
  if (!DatumGeldig(tekst, '-').geldig || (m == 0 && d != 0)) return std::nullopt;
  std::string uit = d == 0 ? "" : GetalTekst(d) + " ";
  if (m != 0) uit.append(kGedMaanden[static_cast<std::size_t>(m) - 1]).append(" ");
  return uit.append(jaar);
}

std::optional<std::string> InCijfers(std::string_view woord) {
  woord = ZonderPunt(woord);
  for (const char scheider : {'-', '.'}) {
    const auto delen = Drietal(woord, scheider);
    if (!delen) continue;
    const auto& [een, twee, drie] = *delen;
    if (IsGetal(een, 1, 2) && IsGetal(twee, 1, 2) && IsGetal(drie, 3, 4)) {
      return Standaard(een, twee, drie);
    }
    if (scheider == '-' && IsGetal(een, 4, 4) && IsGetal(twee, 2, 2) && IsGetal(drie, 2, 2)) {
      return Standaard(drie, twee, een);
    }
  }
  return std::nullopt;
}

Woorden WoordenVan(std::string_view tekst) {
  Woorden woorden;
  for (tekst = TrimLinks(tekst); !tekst.empty(); tekst = TrimLinks(tekst)) {
    const std::size_t eind = std::min(tekst.find(' '), tekst.size());
    woorden.push_back(tekst.substr(0, eind));
    tekst.remove_prefix(eind);
  }
  return woorden;
}

}  // namespace

std::string GedDatumWoorden(std::string_view tekst) {
  const std::string groot = Hoofdletters(tekst);
  const Woorden woorden = WoordenVan(groot);
  std::string uit;
  for (std::size_t i = 0; i < woorden.size(); ++i) {
    if (i > 0) uit += ' ';
    if (StaatAlsMaand(woorden, i)) {
      uit += Maand(woorden[i]);
    } else if (i + 1 < woorden.size() && StaatAlsMaand(woorden, i + 1)) {
      uit += IsCijfer(woorden[i].front()) ? ZonderPunt(woorden[i]) : woorden[i];
    } else if (const auto datum = InCijfers(woorden[i]); datum && BegintHierDatum(woorden, i)) {
      uit += *datum;
    } else {
      uit += woorden[i];
    }
  }
  return uit;
}

}  // namespace lb77
