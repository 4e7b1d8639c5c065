// What the parts of the layout maker share.
#pragma once

#include <QHBoxLayout>
#include <QWidget>
#include <string>

#include "forms/Formulier.h"
#include "qt/Element.h"

namespace lb77::opmaak {

inline constexpr int kTussen = 8;       // pixels between neighbours
inline constexpr int kSmalleKolom = 7;  // characters of a column of values that needs no more room

inline bool HeeftPrompt(const Bediening& bediening) {
  return !bediening.Prompt().empty();
}

// Stands where the prompts of other lines stand.
inline bool IsOpschrift(const Bediening& bediening) {
  return bediening.Soort() == BedieningSoort::Label ||
         bediening.Soort() == BedieningSoort::Wissellabel;
}

// Takes no more room than it needs.
inline bool IsSmal(const Element& element) {
  const BedieningSoort soort = element.Bron().Soort();
  return soort == BedieningSoort::Knop || soort == BedieningSoort::Keuzevak ||
         element.Widget().maximumWidth() < QWIDGETSIZE_MAX;
}

// What is said of a control that has no words of its own: those of its line and its column.
void GeefLeesnaam(Bediening& bediening, const std::string& woorden);
// The words before a control, else those on it.
[[nodiscard]] std::string WatErVoorStaat(const Bediening& eerste);
// A name that the form has more than once gets a number.
void MaakLeesnamenUniek(const Formulier& formulier);

inline QHBoxLayout* NieuweRij() {
  auto* rij = new QHBoxLayout;
  rij->setSpacing(kTussen);
  return rij;
}

}  // namespace lb77::opmaak
