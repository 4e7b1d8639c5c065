// The fan chart: a person in the middle, his ancestors in rings around him.
#pragma once

#include <string>

#include "forms/Tekening.h"
#include "pictures/BeeldPersoon.h"
#include "pictures/Lettermaat.h"

namespace lb77 {

// The ring of the twelfth generation has 2048 places.
inline constexpr int kMaxWaaierGen = 12;

struct WaaierKeuzen {
  double spanne = 270;  // degrees, 180 to 360
  Kleurwijze kleuren = Kleurwijze::Generatie;
  std::string titel;
};

// Persons of later generations than kMaxWaaierGen are left out. Parents who are not known leave an
// open place, as far as others of their generation are known.
[[nodiscard]] Tekening MaakWaaier(const BeeldPersonen& personen, const WaaierKeuzen& keuzen,
                                  const Lettermaat& maat);

}  // namespace lb77
