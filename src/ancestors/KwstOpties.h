// The choices of one run of an ancestor report, handed along its chain of forms.
#pragma once

#include <cstdint>
#include <string>

#include "ancestors/KwNummer.h"
#include "reporting/HTMLPagina.h"

namespace lb77 {

// Brothers and sisters: none, those of the proband, all. The values are those kept as SoortUitv.
enum class BroerZus : std::int16_t { Zonder = 1, VanProband = 2, Alle = 3 };

// The layout of a sheet. The values are the choices of its dialog.
enum class Bladvorm { CBG, HSK };

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
  std::string KwHTMLFile;    // of the index: the file of the text, to which its numbers lead
  int KwBreedte = 8;         // of the chart: columns a generation, 2 to 10
  bool KwOokJaren = false;   // of the chart
  bool KwUitlijnen = false;  // of the chart: all names start in one column
  Bladvorm KwBldHSK = Bladvorm::CBG;
  PaginaTeksten teksten;  // title, introduction, closing lines and links
};

}  // namespace lb77
