// A row of like controls, reached by number: RelNrP(1) to RelNrP(5).
#pragma once

#include <cstddef>
#include <deque>
#include <string_view>

#include "forms/Rijnaam.h"

namespace lb77 {

// `N` controls of kind T, numbered from `eerste`; each is named "naam(nummer)". The further
// arguments are those of T behind its name; each element gets the same ones, references as such.
template <class T, std::size_t N>
class Rij {
 public:
  template <class F, class... Args>
  Rij(F& formulier, std::string_view naam, int eerste, Args&&... args) : eerste_(eerste) {
    for (std::size_t i = 0; i < N; ++i) {
      rij_.emplace_back(formulier, Genummerd(naam, eerste + static_cast<int>(i)), args...);
    }
  }

  // Precondition: `nummer` lies in Eerste() to Laatste().
  [[nodiscard]] T& operator()(int nummer) {
    return rij_.at(static_cast<std::size_t>(nummer - eerste_));
  }
  [[nodiscard]] const T& operator()(int nummer) const {
    return rij_.at(static_cast<std::size_t>(nummer - eerste_));
  }
  [[nodiscard]] int Eerste() const { return eerste_; }
  [[nodiscard]] int Laatste() const { return eerste_ + static_cast<int>(N) - 1; }

  // `doe` is called with each number and its control.
  template <class F>
  void Elk(F doe) {
    for (int nummer = Eerste(); nummer <= Laatste(); ++nummer) doe(nummer, (*this)(nummer));
  }

 private:
  std::deque<T> rij_;
  int eerste_;
};

}  // namespace lb77
