// The settings dialog of the user's own particulars.
#pragma once

#include "app/InstelFormulier.h"

namespace lb77 {

class IniGebruiker final : public InstelFormulier {
 public:
  explicit IniGebruiker(Hoofdmodule& hoofd);

  Tekstvak HSKLidTekst{*this, "HSKLidTekst", "Lidnummer HSK:"};
  Tekstvak VoorlettersTekst{*this, "VoorlettersTekst", "Voorletters:"};
  Label VoorlettersUitleg{*this, "VoorlettersUitleg", "(Voorletters en/of Voornaam)"};
  Tekstvak AchternaamTekst{*this, "AchternaamTekst", "Uw Achternaam:"};
  Label AchternaamUitleg{*this, "AchternaamUitleg", "(Voorvoegsels vooraan)"};
  Tekstvak AdresTekst{*this, "AdresTekst", "Adres:"};
  Label AdresUitleg{*this, "AdresUitleg", "(Straatnaam en huisnummer)"};
  Tekstvak PostcodeTekst{*this, "PostcodeTekst", "Postcode en Woonplaats:"};
  Tekstvak WoonplaatsTekst{*this, "WoonplaatsTekst"};
  Tekstvak LandTekst{*this, "LandTekst", "Land:"};
  Tekstvak TelefoonTekst{*this, "TelefoonTekst", "Telefoon:"};
  Keuzevak GeslachtBox{*this, "GeslachtBox", "Uw Geslacht:", {"", "Man", "Vrouw"}};
  Tekstvak EmailTekst{*this, "EmailTekst", "E-mail adres:"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};
};

}  // namespace lb77
