// The road through a chain of forms as most users go it, and what a test does otherwise.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

// A form of a chain: what the user does in it on the ordinary road ("" in a form that works by
// itself), or nothing when that road passes it by.
struct KetenVorm {
  std::string naam;
  std::string titel;
  std::string doet;
  bool opDeWeg = true;
};

// The first form stays open around the others, as a prompt does. Scripts and transcripts are raw
// literals: blanks around a line and blank lines do not count.
class Keten {
 public:
  explicit Keten(std::vector<KetenVorm> vormen);

  // In this form the user does something else, and this stands between its opening and its closing.
  // A form that the road passes by is on it then. A name that the chain does not have fails the test.
  Keten& In(std::string_view naam, std::string_view doet, std::string_view verslag = {});
  // The form does what it always does, and tells this besides.
  Keten& Zegt(std::string_view naam, std::string_view verslag);
  // The chain ends behind this form.
  Keten& Tot(std::string_view naam);

  [[nodiscard]] std::string Draaiboek() const;
  [[nodiscard]] std::string Verslag() const;

 private:
  struct Schakel {
    KetenVorm vorm;
    std::string verslag;
  };
  [[nodiscard]] Schakel* Vind(std::string_view naam);

  std::vector<Schakel> schakels_;
};

}  // namespace lb77
