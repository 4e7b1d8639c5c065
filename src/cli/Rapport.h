// A report command: the forms that it meets, and what it fills in on each.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "cli/Opdrachten.h"

namespace lb77 {

class Bediener;
class Formulier;

// What goes into a field.
enum class Vulling {
  Niets,    // no field: the row ends here
  Woord,    // a word of the command line, by its index
  Persoon,  // the same, where a name stands for the number of the only person who has it
  Waarde,   // that of the row
  Html,     // "Ja" with --html, else "Nee"
  Links     // of a dialog of links: nothing where the settings have none, since the sample
            // that such a field shows is for who sees it
};

struct VeldVulling {
  std::string_view veld;
  Vulling wat = Vulling::Niets;
  std::size_t woord = 0;
  std::string_view waarde = {};
};

// The fields of a form in the order in which they are filled; OK goes behind them. The choices of
// --zet are made on the form that says so; the one for `plaats` is the beginning of a place's name, or
// its number.
struct RapportVorm {
  std::string_view formulier;
  std::array<VeldVulling, 3> velden = {};
  bool metZet = false;
  std::string_view knop = "OKButton";
  std::string_view plaats = {};
};

// A form that the user walks over, and how he does it.
struct Wandeling {
  std::string_view formulier;
  void (*loop)(Bediener&, Formulier&) = nullptr;
};

struct Rapport {
  std::string_view menuKeuze;
  std::array<RapportVorm, 4> vormen;  // an empty name ends them
  // With one nothing is viewed: what is printed on the way is the report.
  Wandeling wandeling = {};
};

// Works the forms; what the viewer or the printer would show goes where the command line says. The exit status.
[[nodiscard]] int MaakRapport(const Rapport& rapport, const Omgeving& omgeving,
                              const OpdrachtArgumenten& argumenten);

}  // namespace lb77
