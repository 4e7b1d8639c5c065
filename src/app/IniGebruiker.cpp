#include "app/IniGebruiker.h"

namespace lb77 {

IniGebruiker::IniGebruiker(Hoofdmodule& hoofd)
    : InstelFormulier("IniGebruiker", "Systeem Instellingen - Gebruikersgegevens", hoofd) {
  ZetEersteVeld(HSKLidTekst);
  Koppel(HSKLidTekst, "Gebruiker", "Lidnr");
  Koppel(VoorlettersTekst, "Gebruiker", "Voornaam");
  Koppel(AchternaamTekst, "Gebruiker", "Naam");
  Koppel(AdresTekst, "Gebruiker", "Adres");
  Koppel(PostcodeTekst, "Gebruiker", "Postcode");
  Koppel(WoonplaatsTekst, "Gebruiker", "Plaats");
  Koppel(LandTekst, "Gebruiker", "Land");
  Koppel(TelefoonTekst, "Gebruiker", "Telefoon");
  Koppel(EmailTekst, "INTERNET", "Email");
  Koppel(GeslachtBox, "Gebruiker", "Geslacht", {"", "M", "V"});
  KoppelKnoppen(OKButton, BackButton);
}

}  // namespace lb77
