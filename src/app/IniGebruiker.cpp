#include "app/IniGebruiker.h"

#include <string_view>

namespace lb77 {

namespace {

// Which field shows which setting.
struct Koppeling {
  Tekstvak IniGebruiker::*veld;
  std::string_view sectie;
  std::string_view sleutel;
};
constexpr Koppeling kKoppelingen[] = {
    {&IniGebruiker::HSKLidTekst, "Gebruiker", "Lidnr"},
    {&IniGebruiker::VoorlettersTekst, "Gebruiker", "Voornaam"},
    {&IniGebruiker::AchternaamTekst, "Gebruiker", "Naam"},
    {&IniGebruiker::AdresTekst, "Gebruiker", "Adres"},
    {&IniGebruiker::PostcodeTekst, "Gebruiker", "Postcode"},
    {&IniGebruiker::WoonplaatsTekst, "Gebruiker", "Plaats"},
    {&IniGebruiker::LandTekst, "Gebruiker", "Land"},
    {&IniGebruiker::TelefoonTekst, "Gebruiker", "Telefoon"},
    {&IniGebruiker::EmailTekst, "INTERNET", "Email"},
};
// Geslacht by the position in its box.
constexpr std::string_view kGeslachten[] = {"", "M", "V"};

}  // namespace

IniGebruiker::IniGebruiker(Hoofdmodule& hoofd)
    : Formulier("IniGebruiker", "Systeem Instellingen - Gebruikersgegevens"), hoofd_(hoofd) {
  ZetEersteVeld(HSKLidTekst);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void IniGebruiker::BijLaden() {
  for (const Koppeling& k : kKoppelingen) {
    (this->*k.veld).ZetTekst(hoofd_.Ini.IniWaarde(k.sectie, k.sleutel));
  }
  const std::string geslacht = hoofd_.Ini.IniWaarde("Gebruiker", "Geslacht");
  GeslachtBox.ZetIndex(geslacht == "M" ? 1 : geslacht == "V" ? 2 : 0);
}

void IniGebruiker::OKButtonKlik() {
  for (const Koppeling& k : kKoppelingen) {
    hoofd_.Ini.IniZet(k.sectie, k.sleutel, (this->*k.veld).Tekst());
  }
  const int keuze = GeslachtBox.Index();
  hoofd_.Ini.IniZet("Gebruiker", "Geslacht", kGeslachten[keuze < 0 ? 0 : keuze]);
  hoofd_.Ini.IniSchrijf();
  Sluit();
}

}  // namespace lb77
