// The script language: one instruction a line, read by a table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/Gesprek.h"
#include "forms/Toets.h"

namespace lb77 {

enum class InstructieSoort {
  Kies,
  Vul,
  Typ,
  Druk,
  Dubbelklik,
  Toets,
  Stel,
  Antwoord,
  Bestand,
  Onderbreek,
  Toon,
  Sluit
};

// One thing that the user does, or holds ready. Texts are Windows-1252.
struct Instructie {
  InstructieSoort soort = InstructieSoort::Toon;
  std::string naam;                  // the control; empty for none
  std::string argument;              // what stands behind it, without quotes; of `bestand` in UTF-8
  bool aangehaald = false;           // the argument stood in quotes
  ToetsGebeurtenis toets;            // of `toets`
  std::vector<Antwoord> antwoorden;  // of `antwoord`, at least one
  int aantal = 0;                    // of `onderbreek`, from 1
  int regel = 0;                     // counted from 1
  std::string tekst;                 // the line as it was written, in UTF-8
};

// A script as read. `fout` is empty, or tells line and reason in UTF-8; there are no instructions
// then.
struct Draaiboek {
  std::vector<Instructie> instructies;
  std::string fout;
};

// Reads a whole script in UTF-8. Lines end in LF or CR LF; blank ones and those that begin with
// "#" are skipped; blanks around a line do not count.
[[nodiscard]] Draaiboek LeesDraaiboek(std::string_view utf8);

// Holds something ready for a later box, file question or loop instead of acting on a form.
[[nodiscard]] bool IsKlaarzetten(InstructieSoort soort);

}  // namespace lb77
