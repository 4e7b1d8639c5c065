// The persons of the active set whose cards were on the screen last.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace lb77 {

// In memory only; whoever shows them keeps them for the next time (app/GezienBestand.h).
class Gezien {
 public:
  static constexpr std::size_t kMeeste = 8;

  // The card of person `nr` is on the screen: he is the first now.
  void Zag(std::int16_t nr) {
    std::erase(nummers_, nr);
    nummers_.insert(nummers_.begin(), nr);
    if (nummers_.size() > kMeeste) nummers_.resize(kMeeste);
  }
  void Zet(std::vector<std::int16_t> nummers) {
    nummers_ = std::move(nummers);
    if (nummers_.size() > kMeeste) nummers_.resize(kMeeste);
  }
  // The last one first.
  [[nodiscard]] const std::vector<std::int16_t>& Nummers() const { return nummers_; }

 private:
  std::vector<std::int16_t> nummers_;
};

}  // namespace lb77
