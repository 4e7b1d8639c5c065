// Sessions that walk the sheets of the sample family.
#pragma once

#include "ancestors/KwstKeten.h"

namespace lb77 {

// Kwartier 14 of the family has a father here, on a further sheet.
class KwstBladKeten : public KwstKeten {
 protected:
  KwstBladKeten() {
    soort_ = &kKwstBldPrs;
    verre_ = Bouw().Man("Verre", "Cool");
    Bouw().Relatie(verre_, 0, {kKlaas});
  }

  // From the number of the proband to his sheet.
  [[nodiscard]] static Keten Weg() {
    return Keten({
        {"KwstBldPrs", "Nummer Proband", "vul RecordNr 9\ndruk OKButton"},
        {"KwstBereken", "Opbouwen Kwartierstaat", ""},
        {"KwstBladen", "Kwartierblad", "druk BackButton"},
    });
  }
  // What the user does on the sheet, before he leaves it.
  void OpBlad(std::string_view doet, std::string_view verslag, const Plek& plek = Plek::current()) {
    Speel(Weg().In("KwstBladen", std::string(doet) + "\ndruk BackButton", verslag), plek);
  }

  static constexpr std::int16_t kKlaas = 5;
  std::int16_t verre_ = 0;
};

}  // namespace lb77
