// Puts shapes and texts into a drawing: what the pictures share.
#pragma once

#include <string>
#include <string_view>

#include "forms/Tekening.h"
#include "pictures/BeeldPersoon.h"
#include "pictures/Lettermaat.h"

namespace lb77 {

inline constexpr double kRegelhoogte = 1.22;  // of a line, in sizes of its letter
inline constexpr double kStok = 0.72;         // of a capital, in sizes of its letter
inline constexpr double kBladrand = 24;       // points of white around a picture
inline constexpr double kLijndikte = 0.8;     // points, of the line around a box

// How a text is written.
struct Schrift {
  double grootte;
  bool vet = false;
  Kleur kleur = {};
};

class Penseel {
 public:
  // Both outlive it.
  Penseel(Tekening& tekening, const Lettermaat& maat) : tekening_(tekening), maat_(maat) {}

  [[nodiscard]] const Lettermaat& Maat() const { return maat_; }
  [[nodiscard]] Letter LetterVan(const Schrift& schrift) const {
    return {maat_, schrift.grootte, schrift.vet};
  }

  // Makes the next person, whose area is the shape that comes next. What is drawn until Niemand()
  // is his.
  void Begin(std::int16_t nr, std::string naam);
  void Niemand() { doel_ = -1; }
  void Voeg(Vorm vorm);
  // A text around a point on its baseline; an empty one is not drawn.
  void Schrijf(std::string_view tekst, Punt plek, const Schrift& schrift,
               Tekstanker anker = Tekstanker::Begin, double hoek = 0);
  // A text along a circle, its middle at that angle, letter by letter. Below the middle it runs the
  // other way, so that it stands upright; `straal` is that of its baseline.
  void SchrijfBoog(std::string_view tekst, Punt midden, double straal, double graden,
                   const Schrift& schrift);

 private:
  Tekening& tekening_;
  const Lettermaat& maat_;
  int doel_ = -1;
};

// What stands for a person where he is pointed at: names and dates on one line.
[[nodiscard]] std::string NaamVan(const BeeldPersoon& persoon);

// A box with the corners of that sex: round for a woman.
[[nodiscard]] Rechthoek Vak(Geslacht geslacht, Rechthoek vlak);

// Brings what is drawn within `inhoud` onto a sheet that is as large as it needs, on white, with the
// title above it and, when asked for, what the colours of the sexes say below.
void Omlijst(Tekening& tekening, const Lettermaat& maat, const Rechthoek& inhoud, bool legenda);

}  // namespace lb77
