// The choices of one run of a descendant report, handed along its chain of forms.
#pragma once

#include <array>
#include <cstdint>

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

inline constexpr int kMaxVolgNiet = 15;
inline constexpr int kGrensLeeftijd = 15;

// What all descendant reports ask.
struct GenOpties {
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
};

// What the text report asks besides.
struct GenTxtOpties : GenOpties {
  bool GenOokNrs = false;
  bool GenOokOpm = false;
  bool GenVerwijzing = false;
  bool GenPerGeneratie = false;  // generation by generation, else branch by branch
};

}  // namespace lb77
