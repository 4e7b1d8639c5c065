// Names: sort form, fixed-width columns, and place texts of foreign files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lb77 {

// The prefix lists of the settings: words separated by commas, blanks around them ignored.
struct Voorvoegsels {
  // First word of a surname.
  std::string Voor1 = "van,von,op,ter,ten,'s,onder,aan,de,in,la,l',le,zum,am,zur,auf";
  // Word behind a first prefix.
  std::string Voor2 = "de,den,der,het,du,la,'t,d',dem";
};

// To which side a column is aligned.
enum class Richting { Links, Rechts };

// A place text split up.
struct PlaatsDelen {
  std::string tekst;  // the place itself
  std::string prov;   // province or what stands between brackets
  std::string rest;   // what stands behind the last comma
};

// The sort form of a surname: ‘van der Berg’ gives ‘Berg, van der’. Prefixes are found in upper
// and lower case and come out in lower case.
std::string NaamSorteer(std::string_view naam, const Voorvoegsels& voorvoegsels);

// Left-aligned text of exactly `breedte` characters: cut, or filled with the first character of
// `vul` (a blank when that is empty).
std::string Links(std::string_view tekst, std::size_t breedte, std::string_view vul = " ");

// Right-aligned text of exactly `breedte` characters: loses its left characters, or gets `vul` in
// front.
std::string Rechts(std::string_view tekst, std::size_t breedte, char vul = ' ');

// A number of exactly `breedte` characters: to the right as Rechts, to the left as Links.
std::string Kolom(std::int64_t waarde, std::size_t breedte, Richting richting);

// Splits a place text of a foreign file: ‘Amsterdam (NH)’, ‘Amsterdam, NH, Nederland’.
PlaatsDelen SplitsPlaats(std::string_view tekst);

}  // namespace lb77
