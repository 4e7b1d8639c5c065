// The choices of one run of a descendant report, handed along its chain of forms.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "reporting/HTMLPagina.h"

namespace lb77 {

// Which sons and which daughters get an entry of their own. The values are those kept as VolgZonen
// and VolgDochters.
enum class GenZonen : std::int16_t { Geen = 1, MetNageslacht, MetRelatie, OuderDan, Alle };
enum class GenDochters : std::int16_t {
  Geen = 1,
  MetNageslacht,
  MetRelatie,
  OngehuwdeMoeders,
  OuderDan,
  Alle
};

// How a chart tells dates, partners and first names. The values are those kept as ToonDatums, Partners
// and VoorNamen.
enum class GenDatums : std::int16_t { Nee, Jaartallen, Volledig };
// kept: OnderElkaar writes the partners behind the person and NaastElkaar beneath him where a chart
// runs from left to right; where it runs downward they stand as the names say.
enum class GenPartnerWijze : std::int16_t { Nee, OnderElkaar, NaastElkaar };
enum class GenVoornaamWijze : std::int16_t { Nee, AlleenEerste, Voorletters, Volledig };

inline constexpr int kMaxVolgNiet = 15;
inline constexpr int kGrensLeeftijd = 15;
inline constexpr int kPosVNamen = 30;
inline constexpr int kPosANamen = 25;

struct GenOpties {
  // Who is followed.
  std::int16_t GenStamouderNr = 0;
  GenZonen GenVolgZonen = GenZonen::Alle;
  GenDochters GenVolgDochters = GenDochters::Alle;
  int GenGrensLeeftijd = kGrensLeeftijd;  // years, for the rules on age
  int GenMaxGen = 80;                     // last generation, 1 to 80
  bool GenVolgHerh = false;
  bool GenUitsluiten = false;
  std::array<std::int16_t, kMaxVolgNiet> GenVolgNiet{};  // persons not followed; 0 for none

  bool GenInHTML = false;
  PaginaTeksten teksten;  // title, introduction, closing lines and links

  // Of the text and its index.
  bool GenOokNrs = false;
  bool GenPerGeneratie = false;  // generation by generation, else branch by branch
  bool GenOokOpm = false;        // of the text
  bool GenVerwijzing = false;    // of the text
  std::string GenHTMLFile;       // of the index: the page of the text that its labels lead to

  // Of the chart.
  bool GenOokPrsNrs = false;
  bool GenOokRelNrs = false;
  bool GenOokVolgNrs = false;
  bool GenVertikaal = false;
  bool GenCentreren = false;
  GenDatums GenToonDatums = GenDatums::Nee;
  GenPartnerWijze GenPartners = GenPartnerWijze::Nee;
  GenVoornaamWijze GenVoorNamen = GenVoornaamWijze::AlleenEerste;
  int GenPosVNamen = kPosVNamen;  // characters of the first names, 5 to 30
  int GenPosANamen = kPosANamen;  // of the surname, 0 to 25; 0 leaves it out
};

}  // namespace lb77
