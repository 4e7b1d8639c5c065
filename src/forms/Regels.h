// Rows of several controls each, declared row by row: Tab goes from left to right.
#pragma once

#include <cstddef>
#include <deque>

#include "forms/Rijnaam.h"  // IWYU pragma: export

namespace lb77 {

// `N` rows, numbered from `eerste`. A row is a struct of controls, made with the form, its number
// and the further arguments; it names its controls with Genummerd("RelNrP", nummer).
template <class Regel, std::size_t N>
class Regels {
 public:
  template <class F, class... Args>
  Regels(F& formulier, int eerste, Args&&... args) : eerste_(eerste) {
    for (std::size_t i = 0; i < N; ++i) {
      regels_.emplace_back(formulier, eerste + static_cast<int>(i), args...);
    }
  }

  // Precondition: `nummer` lies in Eerste() to Laatste().
  [[nodiscard]] Regel& operator()(int nummer) {
    return regels_.at(static_cast<std::size_t>(nummer - eerste_));
  }
  [[nodiscard]] const Regel& operator()(int nummer) const {
    return regels_.at(static_cast<std::size_t>(nummer - eerste_));
  }
  [[nodiscard]] int Eerste() const { return eerste_; }
  [[nodiscard]] int Laatste() const { return eerste_ + static_cast<int>(N) - 1; }

  // `doe` is called with each number and its row.
  template <class F>
  void Elk(F doe) {
    for (int nummer = Eerste(); nummer <= Laatste(); ++nummer) doe(nummer, (*this)(nummer));
  }

 private:
  std::deque<Regel> regels_;
  int eerste_;
};

}  // namespace lb77
