// What a picture tells of a person, and how.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lb77 {

enum class Geslacht { Man, Vrouw, Onbekend };
// The values are the choices of the form.
enum class Kleurwijze { Generatie, Geslacht, Geen };

// Texts are Windows-1252; one that is not asked for, or not known, is empty.
struct BeeldPersoon {
  std::int16_t nr = 0;  // his record; several places may show the same person
  int vorige = -1;      // the place that he hangs on, which stands before his own; -1 for the root
  int generatie = 0;    // from 0, the root's; that of `vorige` and 1
  Geslacht geslacht = Geslacht::Onbekend;
  bool moeder = false;  // of the person that he hangs on, in a picture of ancestors
  std::string voornamen;
  std::string achternaam;
  std::vector<std::string> datums;
  std::string nummer;                 // before his name
  std::string elders;                 // where he is told already: "= 12"
  std::vector<std::string> partners;  // a line each
};

// Generation by generation, those on the same place side by side: children in their order, the
// father before the mother.
using BeeldPersonen = std::vector<BeeldPersoon>;

}  // namespace lb77
