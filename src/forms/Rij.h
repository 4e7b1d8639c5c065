// A row of like controls, reached by number: RelNrP(1) to RelNrP(5).
#pragma once

#include <cstddef>
#include <string_view>

#include "forms/Nummerreeks.h"
#include "forms/Rijnaam.h"

namespace lb77 {

// `N` controls of kind T, numbered from `eerste`; each is named "naam(nummer)". The further
// arguments are those of T behind its name; each element gets the same ones, references as such.
template <class T, std::size_t N>
class Rij : public Nummerreeks<T, N> {
 public:
  template <class F, class... Args>
  Rij(F& formulier, std::string_view naam, int eerste, Args&&... args)
      : Nummerreeks<T, N>(eerste, [&](auto& reeks, int nummer) {
          reeks.emplace_back(formulier, Genummerd(naam, nummer), args...);
        }) {}
};

}  // namespace lb77
