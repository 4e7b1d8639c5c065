// The lines of a GEDCOM 5.5.1 file in UTF-8.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "exchange/ExpUitvoer.h"

namespace lb77 {

// The characters of a line that the standard allows, its end included.
inline constexpr std::size_t kGed551Regel = 255;
// Tags of our own begin so: what the standard has no word for, and only this program reads.
inline constexpr std::string_view kEigenTag = "_LB";

// Takes values in Windows-1252. An "@" is doubled, a control character becomes a blank, and what
// makes a line too long goes on in CONC lines, cut within a word.
class Ged551Regels {
 public:
  // `uit` outlives it.
  explicit Ged551Regels(ExpUitvoer& uit) : uit_(uit) {}

  // Is there more in it than blanks and control characters?
  [[nodiscard]] static bool HeeftTekst(std::string_view waarde);

  // The first line, behind the byte-order mark.
  void Begin();
  void Regel(int level, std::string_view tag, std::string_view waarde = {});
  // A text of several lines: the first with its tag, the others by CONT.
  template <class Regels>
  void Tekst(int level, std::string_view tag, const Regels& regels) {
    bool vervolg = false;
    for (const std::string& regel : regels) {
      Regel(vervolg ? level + 1 : level, vervolg ? "CONT" : tag, regel);
      vervolg = true;
    }
  }
  // ‘0 @I12@ INDI’
  void Record(char soort, std::int16_t nr, std::string_view tag);
  // ‘1 FAMC @F12@’
  void Verwijzing(int level, std::string_view tag, char soort, std::int16_t nr);

  // The control characters that became a blank.
  [[nodiscard]] int Stuurtekens() const { return stuurtekens_; }
  // How often each tag of our own was written.
  [[nodiscard]] const std::map<std::string, int, std::less<>>& EigenTags() const { return eigen_; }

 private:
  void Schrijf(std::string_view begin, std::string_view waarde);
  void TelEigen(std::string_view tag);

  ExpUitvoer& uit_;
  int stuurtekens_ = 0;
  std::map<std::string, int, std::less<>> eigen_;
};

}  // namespace lb77
