// The scan of a file set for the contact service: every event that shows a surname in a place.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "contact/GciReeksen.h"
#include "reporting/Verloop.h"
#include "store/PersoonLB77.h"
#include "store/RecordBestand.h"
#include "store/RelatieLB77.h"

namespace lb77 {

enum class NaamOordeel { Goed, Overslaan, Afbreken };

class GciScan {
 public:
  // What is to be done with a surname.
  using Keur = std::function<NaamOordeel(const std::string& naam)>;

  // `kinderen`: the births and baptisms of her children count for a mother.
  GciScan(PersoonLB77& persoon, RelatieLB77& relatie, GciReeksen& reeksen, bool kinderen,
          Keur keur);

  // From the first person to the first that can't be read. Klaar, Afgebroken, or Vol when there are
  // too many series.
  [[nodiscard]] Uitslag Voer(const Verloop& verloop);

  // The number of the person that could not be read; 0 before that.
  [[nodiscard]] std::int16_t GestoptBij() const { return gestoptBij_; }

 private:
  // Whose events are being counted.
  struct Wie {
    std::string naam;
    std::int16_t nr = 0;
    bool vrouw = false;
  };
  [[nodiscard]] bool Tel(const Wie& wie, std::int16_t plaats, std::int16_t jaar);
  [[nodiscard]] bool TelPersoon(const Wie& wie);
  [[nodiscard]] bool TelRelaties(const Wie& wie);
  [[nodiscard]] bool TelRelatie(const Wie& wie, std::int16_t relatieNr);
  [[nodiscard]] bool TelGeboorte(const Wie& wie);

  PersoonLB77& persoon_;
  RelatieLB77& relatie_;
  GciReeksen& reeksen_;
  bool kinderen_;
  Keur keur_;
  std::int16_t gestoptBij_ = 0;
};

// Does a person file hold anything behind that record?
[[nodiscard]] bool LigtErMeer(RecordBestand& personen, std::int16_t nr);

}  // namespace lb77
