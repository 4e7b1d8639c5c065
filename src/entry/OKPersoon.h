// Asks whether a person whom the search found is the one who is meant.
#pragma once

#include <string>
#include <string_view>

#include "forms/Formulier.h"

namespace lb77 {

class Hoofdmodule;

// Shows person HuidigPersoonNr under the names given. No, and closing without an answer, set
// HuidigPersoonNr to 0.
class OKPersoon final : public Formulier {
 public:
  OKPersoon(Hoofdmodule& hoofd, std::string_view voornaam, std::string_view achternaam);

  Label VraagLabel{*this, "VraagLabel", "Is dit de juiste Persoon ?"};
  Teller PNr{*this, "PNr", "Persoonsnummer:"};
  Teller NaamVeld{*this, "Naam", "Naam:"};
  Tekstblok InfoTekst{*this, "InfoTekst"};
  Knop JaButton{*this, "JaButton", "&Ja"};
  Knop NeeButton{*this, "NeeButton", "&Nee"};

 protected:
  void BijLaden() override;
  [[nodiscard]] bool MagSluiten() override;

 private:
  void NeeButtonKlik();

  Hoofdmodule& hoofd_;
  std::string naam_;
};

}  // namespace lb77
