// A drawing as a list of shapes: what a control shows and a file or a printer gets, each the same.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace lb77 {

struct Kleur {
  std::uint8_t rood = 0;
  std::uint8_t groen = 0;
  std::uint8_t blauw = 0;

  friend bool operator==(const Kleur&, const Kleur&) = default;
};

// Lengths are points of 1/72 inch; x runs to the right, y downward. Angles are degrees, clockwise
// from the right.
struct Punt {
  double x = 0;
  double y = 0;
};

struct Rechthoek {
  double x = 0;
  double y = 0;
  double breedte = 0;
  double hoogte = 0;
  double straal = 0;  // of its corners

  [[nodiscard]] double Rechts() const { return x + breedte; }
  [[nodiscard]] double Onder() const { return y + hoogte; }
};

// What lies between two circles and two angles; a whole disk when nothing is left out.
struct Ringdeel {
  Punt midden;
  double binnen = 0;
  double buiten = 0;
  double van = 0;
  double tot = 0;  // > van, by 360 at most
};

struct Lijnstuk {
  std::vector<Punt> punten;
};

enum class Tekstanker { Begin, Midden, Eind };

// One line of Windows-1252 text on its baseline, turned around `plek`.
struct Opschrift {
  Punt plek;
  std::string tekst;
  double grootte = 0;
  bool vet = false;
  Tekstanker anker = Tekstanker::Begin;
  double hoek = 0;
  double breedte = 0;  // the room that it was laid out in
};

struct Vorm {
  std::variant<Rechthoek, Ringdeel, Lijnstuk, Opschrift> wat;
  std::optional<Kleur> vulling = std::nullopt;
  std::optional<Kleur> lijn = std::nullopt;
  double dikte = 0;
  bool gestippeld = false;
  int doel = -1;  // to whom it belongs, an index of Tekening::doelen; -1 for nobody
};

// Somebody in the drawing, on whom the user can stand. `vlak` is the index of the shape that he fills.
struct Doel {
  std::int16_t nr = 0;
  std::string naam;
  std::size_t vlak = 0;
};

struct Tekening {
  std::string titel;
  double breedte = 0;
  double hoogte = 0;
  std::vector<Vorm> vormen;  // each drawn over those before it; those of one person stand together
  std::vector<Doel> doelen;  // in the order in which Tab goes
};

// One sheet of paper and the part of the drawing that stands on it.
struct Vel {
  Rechthoek deel;  // of the drawing
  Punt plek;       // where its top left corner comes on the paper
  int kolom = 0;   // its place among the sheets, from 0
  int rij = 0;
};

// A drawing over sheets of paper of one size, row by row, without those that would stay blank.
struct Vellen {
  double breedte = 0;  // of the paper
  double hoogte = 0;
  double schaal = 1;  // points of paper for a point of the drawing
  int kolommen = 0;
  int rijen = 0;
  double overlap = 0;  // points of paper that neighbours have in common; marks tell where it begins
  std::vector<Vel> vellen;
};

// The point of a circle at that angle.
[[nodiscard]] Punt OpCirkel(Punt midden, double straal, double graden);

// The person whose shape holds the point; -1 for nobody.
[[nodiscard]] int DoelOp(const Tekening& tekening, Punt punt);

// The middle of a shape with an area, where the eye looks for it.
[[nodiscard]] Punt MiddenVan(const Vorm& vorm);

}  // namespace lb77
