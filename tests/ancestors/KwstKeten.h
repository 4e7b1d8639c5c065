// Sessions that ask for an ancestor report of the sample family.
#pragma once

#include <string>
#include <string_view>

#include "ancestors/KwstFamilie.h"
#include "ancestors/KwstPrs.h"
#include "steun/FamilieToets.h"
#include "steun/Keten.h"

namespace lb77 {

// The proband of the family is person 9. `kIni` is the settings file that each test starts with.
class KwstKeten : public FamilieToets {
 protected:
  static const std::string_view kIni;

  KwstKeten();
  // Plays a script from the prompt on.
  void Speel(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current());
  // The same for the ordinary road, or what a test makes of it.
  void Speel(const Keten& keten, const Plek& plek = Plek::current()) {
    Speel(keten.Draaiboek(), keten.Verslag(), plek);
  }
  // From the number of the proband to the viewer.
  [[nodiscard]] static Keten Weg();
  [[nodiscard]] std::string Ini() const { return LeesBytes(Map() / "LIJNBOOM.INI"); }
  [[nodiscard]] bool IniHeeft(std::string_view regel) const;
  [[nodiscard]] std::string Verslag() const { return LeesBytes(Map() / "TEMP" / soort_->bestand); }

  const KwstPrsSoort* soort_ = &kKwstTxtPrs;  // the report whose chain is played
  KwstFamilie familie_;
  std::int16_t gebleven_ = 0;  // HuidigPersoonNr behind the chain
};

}  // namespace lb77
