#include "reporting/HTMLParam.h"

#include "app/Hoofdmodule.h"
#include "reporting/OptieTabel.h"
#include "reporting/TitelVelden.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

// The society's page; without an address its line is left out.
constexpr std::string_view kHSKHome{};
constexpr std::string_view kHSKHomeTekst{};

std::string Voorbeeld(std::string_view sjabloon, const std::string& adres) {
  std::string uit(sjabloon);
  const std::size_t plek = uit.find('*');
  return plek == std::string::npos ? uit : uit.replace(plek, 1, adres);
}

}  // namespace

const std::string_view HTMLParam::kLabelVoor = "Geef de tekst vóór de link:"_w;

HTMLParam::HTMLParam(const HTMLParamSoort& soort, Hoofdmodule& hoofd, PaginaTeksten& teksten)
    : KetenFormulier(soort.naam, soort.titel, hoofd), soort_(soort), teksten_(teksten) {
  ZetHulpOnderwerp(soort.hulp);
  ZetEersteVeld(EmailAdres);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  KoppelTerug(BackButton);
}

void HTMLParam::BijLaden() {
  for (const Link& link : links_) {  // the address comes first: a sample tells it
    const std::string waarde = Hoofd().Ini.IniWaarde("INTERNET", link.tag);
    link.veld.ZetTekst(waarde.empty() ? Voorbeeld(link.voorbeeld, EmailAdres.Tekst()) : waarde);
  }
}

void HTMLParam::OKButtonKlik() {
  IniClass& ini = Hoofd().Ini;
  const bool bewaar = BewaartVelden(ini);
  for (const Link& link : links_) {
    link.tekst = PaginaTekst(link.veld.Tekst());
    if (bewaar && !link.tekst.empty()) ini.IniZet("INTERNET", link.tag, link.tekst);
  }
  teksten_.hskHome = kHSKHome;
  teksten_.hskHomeTekst = kHSKHomeTekst;
  if (bewaar) BewaarLinks();
  Sluit();
}

void HTMLParam::BewaarLinks() {
  IniClass& ini = Hoofd().Ini;
  const auto zet = [&](std::string_view tag, const std::string& adres) {
    ini.IniZet(soort_.sectie, tag, adres.empty() ? "N" : "J");
  };
  zet("OokEmail", teksten_.email);
  zet("OokHomePage", teksten_.homePage);
  zet("OokHSKHome", teksten_.hskHome);
  ini.IniSchrijf();
}

}  // namespace lb77
