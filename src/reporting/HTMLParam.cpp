#include "reporting/HTMLParam.h"

#include "app/Hoofdmodule.h"
#include "reporting/TitelVelden.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

constexpr std::string_view kVoorbeeldAdres = "naam@example.org";
constexpr std::string_view kVoorbeeldPagina = "http://www.example.org";

// The society's page; without an address its line is left out.
constexpr std::string_view kHSKHome = "";
constexpr std::string_view kHSKHomeTekst = "";

std::string OfVoorbeeld(const std::string& waarde, const std::string& voorbeeld) {
  return waarde.empty() ? voorbeeld : waarde;
}

}  // namespace

const std::string_view HTMLParam::kLabelVoor = "Geef de tekst vóór de link:"_w;

HTMLParam::HTMLParam(const HTMLParamSoort& soort, Hoofdmodule& hoofd, PaginaTeksten& teksten)
    : Formulier(soort.naam, soort.titel), soort_(soort), hoofd_(hoofd), teksten_(teksten) {
  ZetHulpOnderwerp(soort.hulp);
  ZetEersteVeld(EmailAdres);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { BackButtonKlik(); });
}

void HTMLParam::BijLaden() {
  IniClass& ini = hoofd_.Ini;
  const std::string email =
      OfVoorbeeld(ini.IniWaarde("INTERNET", "Email"), std::string(kVoorbeeldAdres));
  EmailAdres.ZetTekst(email);
  EmailTekst.ZetTekst(
      OfVoorbeeld(ini.IniWaarde("INTERNET", "EmailLabel"), "Schrijf me... (" + email + ")"));
  HomePageURL.ZetTekst(OfVoorbeeld(ini.IniWaarde("INTERNET", "HomePage"), "index.htm"));
  URLTekstTekst.ZetTekst(OfVoorbeeld(ini.IniWaarde("INTERNET", "HomePageLink"),
                                     "mijn home page (" + std::string(kVoorbeeldPagina) + ")"));
  URLLabelTekst.ZetTekst(OfVoorbeeld(ini.IniWaarde("INTERNET", "HomePageLabel"), "Naar"));
}

void HTMLParam::OKButtonKlik() {
  struct Sleutel {
    const Tekstvak& veld;
    std::string& tekst;
    std::string_view tag;
  };
  const Sleutel sleutels[] = {{EmailAdres, teksten_.email, "Email"},
                              {EmailTekst, teksten_.emailTekst, "EmailLabel"},
                              {HomePageURL, teksten_.homePage, "HomePage"},
                              {URLTekstTekst, teksten_.homePageTekst, "HomePageLink"},
                              {URLLabelTekst, teksten_.homePageLabel, "HomePageLabel"}};
  IniClass& ini = hoofd_.Ini;
  const bool bewaar = ini.IniWaarde("Systeem", "OpslaanVelden") == "J";
  for (const Sleutel& sleutel : sleutels) {
    sleutel.tekst = PaginaTekst(sleutel.veld.Tekst());
    if (bewaar && !sleutel.tekst.empty()) ini.IniZet("INTERNET", sleutel.tag, sleutel.tekst);
  }
  teksten_.hskHome = kHSKHome;
  teksten_.hskHomeTekst = kHSKHomeTekst;
  if (bewaar) BewaarLinks();
  Sluit();
}

void HTMLParam::BewaarLinks() {
  IniClass& ini = hoofd_.Ini;
  ini.IniZet(soort_.sectie, "OokEmail", teksten_.email.empty() ? "N" : "J");
  ini.IniZet(soort_.sectie, "OokHomePage", teksten_.homePage.empty() ? "N" : "J");
  ini.IniZet(soort_.sectie, "OokHSKHome", teksten_.hskHome.empty() ? "N" : "J");
  ini.IniSchrijf();
}

void HTMLParam::BackButtonKlik() {
  hoofd_.volgers.HuidigPersoonNr = -1;
  Sluit();
}

}  // namespace lb77
