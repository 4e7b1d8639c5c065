#include "pictures/Lettermaat.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace lb77 {
namespace {

constexpr double kDuizend = 1000;
constexpr char kPuntjes = '\x85';  // the three dots of Windows-1252

using Breedten = std::array<std::int16_t, 256>;

// clang-format off
constexpr Breedten kGewoon{
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
    667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,
    333, 556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
    556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584, 0,
    556, 0, 222, 556, 333, 1000, 556, 556, 333, 1000, 667, 333, 1000, 0, 611, 0,
    0, 222, 222, 333, 333, 350, 556, 1000, 333, 1000, 500, 333, 944, 0, 500, 667,
    278, 333, 556, 556, 556, 556, 260, 556, 333, 737, 370, 556, 584, 333, 737, 552,
    400, 549, 333, 333, 333, 576, 537, 333, 333, 333, 365, 556, 834, 834, 834, 611,
    667, 667, 667, 667, 667, 667, 1000, 722, 667, 667, 667, 667, 278, 278, 278, 278,
    722, 722, 778, 778, 778, 778, 778, 584, 778, 722, 722, 722, 722, 667, 667, 611,
    556, 556, 556, 556, 556, 556, 889, 500, 556, 556, 556, 556, 278, 278, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 549, 611, 556, 556, 556, 556, 500, 556, 500,
};

constexpr Breedten kVet{
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611,
    975, 722, 722, 722, 722, 667, 611, 778, 722, 278, 556, 722, 611, 833, 722, 778,
    667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 333, 278, 333, 584, 556,
    333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556, 278, 889, 611, 611,
    611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584, 0,
    556, 0, 278, 556, 500, 1000, 556, 556, 333, 1000, 667, 333, 1000, 0, 611, 0,
    0, 278, 278, 500, 500, 350, 556, 1000, 333, 1000, 556, 333, 944, 0, 500, 667,
    278, 333, 556, 556, 556, 556, 280, 556, 333, 737, 370, 556, 584, 333, 737, 552,
    400, 549, 333, 333, 333, 576, 556, 333, 333, 333, 365, 556, 834, 834, 834, 611,
    722, 722, 722, 722, 722, 722, 1000, 722, 667, 667, 667, 667, 278, 278, 278, 278,
    722, 722, 778, 778, 778, 778, 778, 584, 778, 722, 722, 722, 722, 667, 667, 611,
    556, 556, 556, 556, 556, 556, 889, 556, 556, 556, 556, 556, 278, 278, 278, 278,
    611, 611, 611, 611, 611, 611, 611, 549, 611, 611, 611, 611, 611, 556, 611, 556,
};
// clang-format on

// The first name and the initials of the others; initials of all when `alles`.
std::string Voorletters(std::string_view namen, bool alles) {
  std::string uit;
  for (std::size_t begin = 0; begin < namen.size();) {
    const std::size_t eind = std::min(namen.find(' ', begin), namen.size());
    const std::string_view naam = namen.substr(begin, eind - begin);
    begin = eind + 1;
    if (naam.empty()) continue;
    if (uit.empty() && !alles) {
      uit.append(naam).append(1, ' ');
    } else {
      uit.append(1, naam.front()).append(1, '.');
    }
  }
  if (!uit.empty() && uit.back() == ' ') uit.pop_back();
  return uit;
}

std::string Samen(std::string_view voor, std::string_view achter) {
  std::string uit(voor);
  if (!voor.empty() && !achter.empty()) uit += ' ';
  return uit.append(achter);
}

}  // namespace

double Helveticamaat::Breedte(std::string_view tekst, double grootte, bool vet) const {
  const Breedten& breedten = vet ? kVet : kGewoon;
  std::int64_t som = 0;
  for (const char teken : tekst) som += breedten[static_cast<unsigned char>(teken)];
  return static_cast<double>(som) * grootte / kDuizend;
}

// Adds up letter by letter, so that a text of any length costs no more than what is kept of it.
std::string Ingekort(std::string_view tekst, const Letter& letter, double ruimte) {
  const double puntjes = letter.Breedte({&kPuntjes, 1});
  double breedte = 0;
  std::size_t heel = 0;  // letters that fit before the dots
  for (std::size_t i = 0; i < tekst.size(); ++i) {
    breedte += letter.Breedte(tekst.substr(i, 1));
    if (breedte + puntjes <= ruimte) heel = i + 1;
    if (breedte > ruimte) {
      while (heel > 0 && tekst[heel - 1] == ' ') --heel;
      return heel == 0 ? std::string() : std::string(tekst.substr(0, heel)) + kPuntjes;
    }
  }
  return std::string(tekst);
}

std::string PasVoornamen(std::string_view namen, const Letter& letter, double ruimte) {
  for (const std::string& poging :
       {std::string(namen), Voorletters(namen, false), Voorletters(namen, true)}) {
    if (letter.Breedte(poging) <= ruimte) return poging;
  }
  return Ingekort(Voorletters(namen, true), letter, ruimte);
}

std::string PasNaam(std::string_view voornamen, std::string_view achternaam, const Letter& letter,
                    double ruimte) {
  for (const std::string& poging :
       {std::string(voornamen), Voorletters(voornamen, false), Voorletters(voornamen, true)}) {
    std::string naam = Samen(poging, achternaam);
    if (letter.Breedte(naam) <= ruimte) return naam;
  }
  const std::string_view rest = achternaam.empty() ? voornamen : achternaam;
  return Ingekort(rest, letter, ruimte);
}

}  // namespace lb77
