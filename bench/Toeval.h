// A small generator of random numbers that gives the same numbers on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace lb77::bench {

// SplitMix64. The distributions of the standard library differ between its makers, so there are
// none here.
class Toeval {
 public:
  explicit Toeval(std::uint64_t zaad) : stand_(zaad) {}

  std::uint64_t Volgende() {
    stand_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = stand_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
  }

  // 0 up to, not including, `grens`, which is at least 1.
  int Onder(int grens) {
    return static_cast<int>((Volgende() >> 32U) % static_cast<std::uint64_t>(grens));
  }

  // `van` up to and including `tot`.
  int Tussen(int van, int tot) { return van + Onder(tot - van + 1); }

  // True in so many of a hundred cases.
  bool Kans(int procent) { return Onder(100) < procent; }

  // One of the elements of an array.
  template <class T, std::size_t N>
  const T& Een(const T (&rij)[N]) {
    return rij[Onder(static_cast<int>(N))];
  }

 private:
  std::uint64_t stand_;
};

}  // namespace lb77::bench
