// UTF-16 to UTF-8, piece by piece.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// The order of the two bytes of a unit.
enum class Bytevolgorde { LaagEerst, HoogEerst };

// Half a surrogate pair becomes U+FFFD. A byte-order mark passes as the character that it is.
class Utf16Lezing {
 public:
  explicit Utf16Lezing(Bytevolgorde volgorde) : volgorde_(volgorde) {}

  // Adds what the next bytes of the text hold. A character may lie across two pieces.
  void Neem(std::string_view bytes, std::string& utf8);
  // The text has ended: half a pair that still waited is added, half a unit is dropped.
  void Sluit(std::string& utf8);

 private:
  [[nodiscard]] char32_t Eenheid(char een, char twee) const;
  void NeemAscii(std::string_view& bytes, std::string& utf8) const;
  void NeemEenheid(char32_t eenheid, std::string& utf8);

  Bytevolgorde volgorde_;
  bool half_ = false;  // `eerste_` waits for its other byte
  char eerste_ = 0;
  char32_t hoog_ = 0;  // the first half of a pair that waits; 0 for none
};

}  // namespace lb77
