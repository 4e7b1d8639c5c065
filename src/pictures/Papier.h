// A picture on paper: one sheet, or as many as it takes.
#pragma once

#include <array>
#include <string_view>

#include "forms/Tekening.h"

namespace lb77 {

// A size of paper, upright, in millimetres.
struct Papiermaat {
  std::string_view naam;
  double breedte;
  double hoogte;
};

inline constexpr std::array<Papiermaat, 7> kPapiermaten{{{"A4", 210, 297},
                                                         {"A3", 297, 420},
                                                         {"A2", 420, 594},
                                                         {"A1", 594, 841},
                                                         {"A0", 841, 1189},
                                                         {"Letter", 215.9, 279.4},
                                                         {"Zo groot als het beeld", 0, 0}}};

// The values are the choices of the form.
enum class Stand { Staand, Liggend };
enum class Verdeling { EenVel, WareGrootte };

// On one sheet the picture is made smaller or larger until it fits within the margins; in its own size
// it goes over several, of which neighbours show a strip of the same. Paper without a size of its own
// takes that of the picture.
[[nodiscard]] Vellen VerdeelOverVellen(const Tekening& tekening, const Papiermaat& papier,
                                       Stand stand, Verdeling verdeling);

}  // namespace lb77
