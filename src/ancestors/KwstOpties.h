// The choices of one run of an ancestor report, handed along its chain of forms.
#pragma once

#include <cstdint>
#include <string>

#include "ancestors/KwNummer.h"
#include "reporting/HTMLPagina.h"

namespace lb77 {

// Brothers and sisters: none, those of the proband, all. The values are those kept as SoortUitv.
enum class BroerZus : std::int16_t { Zonder = 1, VanProband = 2, Alle = 3 };

struct KwstOpties {
  std::int16_t KwProbandNr = 0;
  Kwartiernummer KwBeginNr;
  Kwartiernummer KwVanafNr;
  int KwMaxGen = 80;  // last generation, 1 to 80
  BroerZus KwBroerZus = BroerZus::Zonder;
  bool KwOokNrs = false;
  bool KwOokOpm = false;
  bool KwVolgHerh = false;
  bool KwInHTML = false;
  PaginaTeksten teksten;  // title, introduction, closing lines and links
};

}  // namespace lb77
