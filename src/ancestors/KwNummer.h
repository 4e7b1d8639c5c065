// Kwartier numbers: decimal digit strings of any length, never machine numbers.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// Is `a` numerically at least `b`? Both are trimmed; the shorter is padded with blanks on the left
// and a blank sorts below every digit. Nothing is cut off.
[[nodiscard]] bool KwNrGroterGelijk(std::string_view a, std::string_view b);

// 2 × `s` + `bit` (0 or 1), with as many digits as it needs.
[[nodiscard]] std::string KwNrDubbel(std::string_view s, int bit);

// The ahnentafel generation, counted from 1: "1" is 1, "2" and "3" are 2, "4" to "7" are 3. The
// empty string and "0" give 0.
[[nodiscard]] int KwNrGeneratie(std::string_view s);

// A number as the user typed it without blanks around it and zeros in front of it ("0" stays).
[[nodiscard]] std::string KwNrSchoon(std::string_view s);

// The letter by which a brother or sister is told from the kwartier: of child slot 1 to 26 "a" to
// "z", then "aa", "ab" ...
[[nodiscard]] std::string KindLetter(int plaats);

// The number of one position in an ancestor report.
class Kwartiernummer {
 public:
  explicit Kwartiernummer(std::string_view tekst = "1") : tekst_(KwNrSchoon(tekst)) {}

  [[nodiscard]] const std::string& Tekst() const { return tekst_; }
  [[nodiscard]] std::size_t Lengte() const { return tekst_.size(); }
  [[nodiscard]] Kwartiernummer Vader() const { return Kwartiernummer(KwNrDubbel(tekst_, 0)); }
  [[nodiscard]] Kwartiernummer Moeder() const { return Kwartiernummer(KwNrDubbel(tekst_, 1)); }
  // The child whose father or mother stands here; of "1" it is "0".
  [[nodiscard]] Kwartiernummer Kind() const;
  [[nodiscard]] int Generatie() const { return KwNrGeneratie(tekst_); }
  [[nodiscard]] bool Vanaf(const Kwartiernummer& ander) const {
    return KwNrGroterGelijk(tekst_, ander.tekst_);
  }
  friend bool operator==(const Kwartiernummer&, const Kwartiernummer&) = default;

 private:
  std::string tekst_;
};

}  // namespace lb77
