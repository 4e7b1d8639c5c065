// How much room a text takes, and texts that are made to fit.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// Whoever draws can measure with letters of his own; without any the published widths do.
class Lettermaat {
 public:
  Lettermaat() = default;
  virtual ~Lettermaat() = default;
  Lettermaat(const Lettermaat&) = delete;
  Lettermaat& operator=(const Lettermaat&) = delete;

  // The width of a Windows-1252 text in a letter of that size, in the same unit.
  [[nodiscard]] virtual double Breedte(std::string_view tekst, double grootte, bool vet) const = 0;
};

// The widths of Liberation Sans, which are those of Helvetica and Arial (in thousandths of the size;
// source: the table "hmtx" of the Liberation fonts 2, licensed under the SIL Open Font License).
class Helveticamaat final : public Lettermaat {
 public:
  [[nodiscard]] double Breedte(std::string_view tekst, double grootte, bool vet) const override;
};

// A letter that texts are fitted in.
struct Letter {
  const Lettermaat& maat;
  double grootte;
  bool vet = false;

  [[nodiscard]] double Breedte(std::string_view tekst) const {
    return maat.Breedte(tekst, grootte, vet);
  }
};

// The text, its end replaced by dots when it is too long; empty when not even a letter and the dots
// fit.
[[nodiscard]] std::string Ingekort(std::string_view tekst, const Letter& letter, double ruimte);

// First names in so much room: all of them, the first with the initials of the others, initials
// alone, or cut.
[[nodiscard]] std::string PasVoornamen(std::string_view namen, const Letter& letter, double ruimte);

// Both names on one line; the first names give way before the surname does.
[[nodiscard]] std::string PasNaam(std::string_view voornamen, std::string_view achternaam,
                                  const Letter& letter, double ruimte);

}  // namespace lb77
