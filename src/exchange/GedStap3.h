// Pass 3: remarks are made.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "exchange/GedStap.h"

namespace lb77 {

class GedStap3 final : public GedStap {
 public:
  using GedStap::GedStap;

 private:
  // A line as this pass takes it: its tag and value after the changes.
  struct Lezing {
    std::string_view tag;
    std::string waarde;
  };

  [[nodiscard]] Verloop Verwerk(const GedcomRegel& regel) override;
  [[nodiscard]] Verloop NieuwRecord(const GedcomRegel& regel);
  [[nodiscard]] static Lezing Lees(const GedcomRegel& regel);
  void Vervolg(const GedcomRegel& regel);
  void ToonNaam(const Lezing& lezing);
  void MaakOpmerking(Lezing& lezing, std::string_view ouder);
  void Neem(const Lezing& lezing, std::string_view ouder);
  [[nodiscard]] Verloop SchrijfOpmerking();

  std::int16_t persoon_ = 0;
  std::int16_t relatie_ = 0;
  std::size_t personen_ = 0;
  std::size_t relaties_ = 0;
  std::string tekst_;         // the remark that is still growing
  std::int16_t rubriek_ = 0;  // 0: there is none
};

}  // namespace lb77
