// The layout of a form, as data: which control stands where.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lb77 {

// A piece of a layout. A bare control name is one too.
struct Blok {
  enum class Soort {
    Veld,     // one control; "PersNr(*)" stands for all elements of a row, "" for an empty cell
    Rij,      // side by side
    Kolom,    // below each other
    Velden,   // a row for each part: its prompt on the left, the rest on the right
    Groep,    // a frame, with a title
    Tabel,    // a column for each part, a line for each number of the rows
    Rooster,  // a Rij for each line, with a cell for each column; prompts and fields line up
    Knoppen,  // buttons: the first part on the left, the second on the right
  };

  Soort soort = Soort::Veld;
  std::string naam;  // Veld: the control; Groep: the title (UTF-8)
  std::string kop;   // above a column of a Tabel (UTF-8)
  int breedte = 0;   // in a Tabel or Rooster, in characters; 0 leaves it to its controls
  int kolommen = 1;  // that a cell of a Rooster takes
  std::vector<std::string> koppen;  // above the columns of a Rooster (UTF-8)
  std::vector<Blok> delen;

  Blok() = default;
  // NOLINTNEXTLINE(google-explicit-constructor): a name stands for its control in a layout
  Blok(const char* controle) : naam(controle) {}
  Blok(Soort wat, std::vector<Blok> inhoud) : soort(wat), delen(std::move(inhoud)) {}
};

// The layout of one form.
struct Indeling {
  std::string formulier;
  Blok blok;
};

// The words in which layouts are written.
namespace indeling {

inline Blok Veld(std::string naam, std::string kop = {}, int breedte = 0) {
  Blok blok;
  blok.breedte = breedte;
  blok.naam = std::move(naam);
  blok.kop = std::move(kop);
  return blok;
}
inline Blok Rij(std::vector<Blok> delen) {
  return {Blok::Soort::Rij, std::move(delen)};
}
inline Blok Kolom(std::vector<Blok> delen) {
  return {Blok::Soort::Kolom, std::move(delen)};
}
inline Blok Velden(std::vector<Blok> delen) {
  return {Blok::Soort::Velden, std::move(delen)};
}
inline Blok Tabel(std::vector<Blok> delen) {
  return {Blok::Soort::Tabel, std::move(delen)};
}
// Lines of cells, each with its prompt before its field; Rij({"A", "", Over(2, "B")}) is such a line.
// A cell of several controls is a Rij too.
inline Blok Rooster(std::vector<Blok> regels, std::vector<std::string> koppen = {}) {
  Blok blok(Blok::Soort::Rooster, std::move(regels));
  blok.koppen = std::move(koppen);
  return blok;
}
// A cell that takes so many columns.
inline Blok Over(int kolommen, Blok cel) {
  cel.kolommen = kolommen;
  return cel;
}
inline Blok Groep(std::string titel, std::vector<Blok> delen) {
  Blok blok(Blok::Soort::Groep, std::move(delen));
  blok.naam = std::move(titel);
  return blok;
}
// Buttons at the bottom right, or some on the left and the others on the right.
inline Blok Knoppen(std::vector<Blok> rechts) {
  return {Blok::Soort::Knoppen, {Rij({}), Rij(std::move(rechts))}};
}
inline Blok Knoppen(std::vector<Blok> links, std::vector<Blok> rechts) {
  return {Blok::Soort::Knoppen, {Rij(std::move(links)), Rij(std::move(rechts))}};
}

}  // namespace indeling

}  // namespace lb77
