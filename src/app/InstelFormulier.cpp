#include "app/InstelFormulier.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace lb77 {

InstelFormulier::InstelFormulier(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd)
    : InvoerFormulier(naam, titel, hoofd) {
  ZetHulpOnderwerp("instellingen");
}

void InstelFormulier::Koppel(Invoerveld& veld, std::string_view sectie, std::string_view sleutel) {
  IniClass& ini = Hoofd().Ini;
  koppelingen_.push_back({[=, &ini, &veld] { veld.ZetTekst(ini.IniWaarde(sectie, sleutel)); },
                          [=, &ini, &veld] { ini.IniZet(sectie, sleutel, veld.Tekst()); }});
}

void InstelFormulier::Koppel(Padvak& veld, std::string_view sectie, std::string_view sleutel) {
  IniClass& ini = Hoofd().Ini;
  koppelingen_.push_back({[=, &ini, &veld] { veld.ZetPad(ini.IniPad(sectie, sleutel)); },
                          [=, &ini, &veld] { ini.IniZetPad(sectie, sleutel, veld.Pad()); }});
}

void InstelFormulier::Koppel(Lijst& vak, std::string_view sectie, std::string_view sleutel,
                             const std::vector<std::string>& waarden, int anders) {
  IniClass& ini = Hoofd().Ini;
  koppelingen_.push_back(
      {[=, &ini, &vak] {
         const auto gevonden =
             std::find(waarden.begin(), waarden.end(), ini.IniWaarde(sectie, sleutel));
         vak.ZetIndex(gevonden == waarden.end() ? anders
                                                : static_cast<int>(gevonden - waarden.begin()));
       },
       [=, &ini, &vak] {
         const int index = vak.Index() < 0 ? anders : vak.Index();
         ini.IniZet(sectie, sleutel, waarden.at(static_cast<std::size_t>(index)));
       }});
}

void InstelFormulier::KoppelKnoppen(Knop& OKButton, Knop& BackButton) {
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void InstelFormulier::BijLaden() {
  for (const Koppeling& koppeling : koppelingen_) koppeling.toon();
}

void InstelFormulier::Bewaar() {
  for (const Koppeling& koppeling : koppelingen_) koppeling.bewaar();
}

void InstelFormulier::OKButtonKlik() {
  if (!MagBewaren()) return;
  Bewaar();
  Hoofd().Ini.IniSchrijf();
  Sluit();
}

}  // namespace lb77
