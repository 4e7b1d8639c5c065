// Rows of several controls each, declared row by row: Tab goes from left to right.
#pragma once

#include <cstddef>

#include "forms/Nummerreeks.h"
#include "forms/Rijnaam.h"  // IWYU pragma: export

namespace lb77 {

// `N` rows, numbered from `eerste`. A row is a struct of controls, made with the form, its number
// and the further arguments; it names its controls with Genummerd("RelNrP", nummer).
template <class Regel, std::size_t N>
class Regels : public Nummerreeks<Regel, N> {
 public:
  template <class F, class... Args>
  Regels(F& formulier, int eerste, Args&&... args)
      : Nummerreeks<Regel, N>(eerste, [&](auto& reeks, int nummer) {
          reeks.emplace_back(formulier, nummer, args...);
        }) {}
};

}  // namespace lb77
