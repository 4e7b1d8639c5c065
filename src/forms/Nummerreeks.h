// What rows have in common: like things, each reached by its number.
#pragma once

#include <cstddef>
#include <deque>

namespace lb77 {

// `N` things of kind T, numbered from `eerste`.
template <class T, std::size_t N>
class Nummerreeks {
 public:
  // Precondition: `nummer` lies in Eerste() to Laatste().
  [[nodiscard]] T& operator()(int nummer) {
    return reeks_.at(static_cast<std::size_t>(nummer - eerste_));
  }
  [[nodiscard]] const T& operator()(int nummer) const {
    return reeks_.at(static_cast<std::size_t>(nummer - eerste_));
  }
  [[nodiscard]] int Eerste() const { return eerste_; }
  [[nodiscard]] int Laatste() const { return eerste_ + static_cast<int>(N) - 1; }

  // `doe` is called with each number and what has it.
  template <class F>
  void Elk(F doe) {
    for (int nummer = Eerste(); nummer <= Laatste(); ++nummer) doe(nummer, (*this)(nummer));
  }

 protected:
  // `voegToe` puts one more at the end of the deque, which never moves what stands in it.
  template <class F>
  Nummerreeks(int eerste, F voegToe) : eerste_(eerste) {
    for (int nummer = Eerste(); nummer <= Laatste(); ++nummer) voegToe(reeks_, nummer);
  }
  ~Nummerreeks() = default;

 private:
  std::deque<T> reeks_;
  int eerste_;
};

}  // namespace lb77
