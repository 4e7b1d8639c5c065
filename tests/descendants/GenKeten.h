// Sessions that ask for a descendant report of the sample family.
#pragma once

#include <string>
#include <string_view>

#include "descendants/GenFamilie.h"
#include "descendants/GenPrs.h"
#include "steun/FamilieToets.h"
#include "steun/Keten.h"

namespace lb77 {

// The stamouder of the family is person 4. `kIni` is the settings file that each test starts with.
class GenKeten : public FamilieToets {
 protected:
  static const std::string_view kIni;

  GenKeten();
  // Plays a script from the prompt on.
  void Speel(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current());
  // The same for the ordinary road, or what a test makes of it.
  void Speel(const Keten& keten, const Plek& plek = Plek::current()) {
    Speel(keten.Draaiboek(), keten.Verslag(), plek);
  }
  // From the number of the stamouder to the viewer.
  [[nodiscard]] static Keten Weg();
  // One setting of kIni otherwise.
  void ZetIni(std::string_view van, std::string_view naar);
  [[nodiscard]] std::string Ini() const { return LeesBytes(Map() / "LIJNBOOM.INI"); }
  [[nodiscard]] bool IniHeeft(std::string_view regels) const;
  [[nodiscard]] std::string Verslag() const { return LeesBytes(Map() / "TEMP" / soort_->bestand); }
  [[nodiscard]] bool VerslagHeeft(std::string_view tekst) const {
    return Verslag().find(tekst) != std::string::npos;
  }

  GenFamilie familie_;
  const GenPrsSoort* soort_ = &kGenTxtPrs;  // the report that is asked for
  std::int16_t gebleven_ = 0;               // HuidigPersoonNr behind the chain
};

}  // namespace lb77
