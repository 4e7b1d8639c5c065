// The remarks of one owner, with one walk along their chain.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "store/OpmLB77.h"

namespace lb77 {

// The lines of a rubric as OpmLB77::OpmerkingTekst gives them one after the other, without going
// along the chain again for each line. The file of remarks does not change meanwhile.
class OpmReeks {
 public:
  // What a rubric has.
  struct Inhoud {
    std::vector<std::string> regels;  // up to the first empty one; the last may tell of a bad link
    std::size_t over = 0;  // remarks that come to no line because one before them has less than ten
  };

  explicit OpmReeks(OpmLB77& opmerking);

  // Goes to the owner whose first remark lies in that record; 0 has none.
  void Lees(std::int16_t begin);
  [[nodiscard]] std::int16_t Begin() const { return begin_; }

  // Has the owner anything of that rubric, as far as `code` tells?
  [[nodiscard]] bool Heeft(std::int16_t code, std::int16_t rubriek) const {
    return begin_ != 0 && (std::abs(int{code}) & std::abs(int{rubriek})) != 0;
  }
  // Nothing for a rubric that `code` does not have.
  [[nodiscard]] Inhoud Rubriek(std::int16_t code, std::int16_t rubriek);

  // Where a remark begins in the chain.
  struct Kop {
    std::int16_t nr;
    std::int32_t stap;  // the remarks up to it, itself counted
  };
  // All remarks of the owner.
  [[nodiscard]] std::size_t Aantal() const;
  // The remarks of a rubric in the order of the chain, for who wants them all.
  [[nodiscard]] std::span<const Kop> Koppen(std::int16_t rubriek) const;

 private:
  enum class Einde { Vol, Kort, Fout };  // ten lines, less than ten, a bad link

  // Reads a record of a walk. False when there is none, with the text that says so.
  [[nodiscard]] bool Betreed(std::int16_t nr, std::int32_t stap, std::string& fout);
  Einde LeesRegels(const Kop& kop, std::vector<std::string>& regels);

  // What the first record of a remark says. It is kept: in a damaged file thousands of owners may
  // point into one long chain.
  struct Schakel {
    std::int16_t rubriek = 0;
    std::int16_t bijZelfde = 0;
    bool gelezen = false;
    std::int32_t gang = 0;  // the walk that came by last
  };
  [[nodiscard]] bool BetreedKop(std::int16_t nr, std::int32_t stap, Schakel& schakel);

  OpmLB77& opmerking_;
  std::int16_t aantal_;
  std::vector<Schakel> schakels_;  // by number
  std::int32_t gang_ = 0;
  std::int16_t begin_ = 0;
  std::map<std::int16_t, std::vector<Kop>> koppen_;  // by rubric
  std::string fout_;                                 // why the chain broke off
};

}  // namespace lb77
