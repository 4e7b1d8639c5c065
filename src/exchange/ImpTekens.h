// The characters of a Unicode file that Windows-1252 does not have.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string_view>

namespace lb77 {

class ImpTekens {
 public:
  // A line begins, counted from 1.
  void TelRegel() { ++regel_; }
  // One of its characters was lost.
  void Tel(char32_t teken);

  // One line for each kind of character, by its code: "LET OP: teken U+4E2D niet overgenomen: 3 keer,
  // voor het eerst in regel 120".
  void Noteer(const std::function<void(std::string_view)>& log) const;

 private:
  struct Telling {
    std::int32_t keer = 0;
    std::int32_t eerste = 0;
  };
  std::int32_t regel_ = 0;
  std::map<char32_t, Telling> tellingen_;
};

}  // namespace lb77
