// The characters of a file that were lost: Windows-1252 does not have them, or the records do not.
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
  void Tel(char32_t teken) { Tel(teken, regel_); }
  // The same in the line of that number.
  void Tel(char32_t teken, std::int32_t regel);
  // Adds what another count has.
  void Voeg(const ImpTekens& andere);

  // One line for each kind of character, by its code: "LET OP: teken U+4E2D niet overgenomen: 3 keer,
  // voor het eerst in regel 120".
  void Noteer(const std::function<void(std::string_view)>& log) const;

 private:
  struct Telling {
    std::int32_t keer = 0;
    std::int32_t eerste = 0;
  };
  void Voeg(char32_t teken, const Telling& erbij);

  std::int32_t regel_ = 0;
  std::map<char32_t, Telling> tellingen_;
};

}  // namespace lb77
