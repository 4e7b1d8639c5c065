// A sheet of characters to draw on: texts, lines with joints, and marks that take no room.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

class TekstSchrijver;

// Rows and columns count from 0, and the sheet grows as far as it is drawn on; what lies before
// column 0 is left out. A text covers what it stands on. A line goes beneath text, and where one
// across and one down meet there is a joint; a line's own character at a joint is forgotten.
class Tekenvel {
 public:
  // Puts a text, its first character at `kolom`.
  void Zet(int rij, int kolom, std::string_view tekst);
  // Lines with both ends included, in either order.
  void LijnDwars(int rij, int van, int tot, char teken = '-');
  void LijnNeer(int kolom, int van, int tot, char teken = '|');
  // Puts a mark in front of the character at `kolom`; marks of one place stand in the order of their
  // putting. Marks are written for the Internet only, as they are.
  void Merk(int rij, int kolom, std::string_view merk);

  [[nodiscard]] int Rijen() const { return static_cast<int>(rijen_.size()); }
  // The columns of the widest row.
  [[nodiscard]] int Kolommen() const;

  // The rows without blanks at their end: as text without the marks, for the Internet encoded and
  // with them.
  [[nodiscard]] std::vector<std::string> Regels(bool inHTML = false) const;

  // Writes the rows as lines, for the Internet when the writer is. The writer must be as wide as the
  // sheet, with its margin at 0.
  void Schrijf(TekstSchrijver& uit) const;
  // The same to a stream, as text, with CR LF.
  void Schrijf(std::ostream& uit) const;

 private:
  enum class Soort { Leeg, Dwars, Neer, Knoop, Tekst };
  struct Cel {
    char teken = ' ';
    Soort soort = Soort::Leeg;
  };
  struct Merkteken {
    std::size_t kolom = 0;
    std::string tekst;
  };
  struct Rij {
    std::vector<Cel> cellen;
    std::vector<Merkteken> merken;  // by column
  };

  [[nodiscard]] Rij& RijOp(int rij);
  [[nodiscard]] static Cel& CelOp(Rij& rij, int kolom);
  void Lijn(int rij, int kolom, Soort soort, char teken);
  [[nodiscard]] static std::string InTekst(const Rij& rij);
  [[nodiscard]] static std::string InHTML(const Rij& rij);

  std::vector<Rij> rijen_;
};

}  // namespace lb77
