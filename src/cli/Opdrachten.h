// The everyday commands: a table of what each takes and does.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/Klok.h"
#include "script/Speler.h"

namespace lb77 {

// Where a command runs and where its output goes. Standard output and error take UTF-8.
struct Omgeving {
  std::filesystem::path programmaMap;
  const Klok& klok;
  std::ostream& uit;
  std::ostream& fout;
};

// The most words that a command takes.
inline constexpr std::size_t kMeesteWoorden = 3;

// The words of the command line. Texts are Windows-1252; a path is itself.
struct OpdrachtArgumenten {
  // In the order of the command's words; left-out ones are "".
  std::vector<std::string> woorden = std::vector<std::string>(kMeesteWoorden);
  std::filesystem::path bestand;  // of `importeer` and `exporteer`
  bool html = false;
  std::optional<std::filesystem::path> naar;  // --uit, --naar or --van
  std::vector<std::string> zet;               // NAAM=WAARDE
  bool bewaar = false;                        // --bewaar: the choices hold for later runs too
  bool toch = false;                          // --toch: also when another run has the set
  std::string personen;                       // --personen, --relaties: VAN-TOT; both "" is all
  std::string relaties;
  bool utf8 = false;    // --utf8, of `exporteer`
  bool behoud = false;  // --behoud, of `herstel`
};

// What a command accepts beside its words. A Tekstrapport has no form in HTML,
// the choices of a Controle are not kept.
enum class Extra {
  Geen,
  Bestand,
  Export,
  Uitdraai,
  ExportGedcom,
  Rapport,
  Tekstrapport,
  Controle,
  Behoud,
  Kopie,
  Terug
};

// Gives the exit status: 0, or 1 after an error.
using OpdrachtFunctie = int(const Omgeving&, const OpdrachtArgumenten&);

struct Opdracht {
  std::string_view naam;
  std::string_view uitleg;
  // The names of its words, the first empty one ends them; one in brackets may be left out.
  std::array<std::string_view, kMeesteWoorden> woorden;
  Extra extra;
  OpdrachtFunctie* doe;
  bool maaktMap = false;  // the program's directory need not be there
  bool schrijft = false;  // takes a set that is there for itself
};

// All commands but `speel`, in the order of the help.
[[nodiscard]] std::span<const Opdracht> Opdrachten();

// `speel`: plays the script `utf8` and prints its transcript.
[[nodiscard]] int SpeelDraaiboek(const Omgeving& omgeving, std::string_view utf8,
                                 SpeelOpties opties);

}  // namespace lb77
