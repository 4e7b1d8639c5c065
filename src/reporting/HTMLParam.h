// The dialog for the links of an HTML report; one class for all reports, by a table of texts.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "reporting/HTMLPagina.h"
#include "reporting/KetenFormulier.h"

namespace lb77 {

// What tells one HTML dialog from another: its name, title, the settings section of its report, and
// the chapter of the manual. Each report has its own row.
struct HTMLParamSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view sectie;
  std::string_view hulp;
};

// Asks e-mail address and home page for the foot of a page. OK puts them into `teksten` and into
// the settings; BackButton stops the chain.
class HTMLParam final : public KetenFormulier {
 public:
  HTMLParam(const HTMLParamSoort& soort, Hoofdmodule& hoofd, PaginaTeksten& teksten);

  Tekstvak EmailAdres{*this, "EmailAdres", "E-mail adres:", 81};
  Tekstvak EmailTekst{*this, "EmailTekst", "Geef de bijbehorende tekst:", 81};
  Tekstvak HomePageURL{*this, "HomePageURL", "Eigen Home Page adres (URL):", 81};
  Tekstvak URLLabelTekst{*this, "URLLabelTekst", kLabelVoor, 81};
  Tekstvak URLTekstTekst{*this, "URLTekstTekst", "Geef de tekst van de link:", 81};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // One link text: its field, its key in section INTERNET, where it goes, and the sample that the
  // field shows when there is none. The address stands in a sample as '*'.
  struct Link {
    Tekstvak& veld;
    std::string_view tag;
    std::string& tekst;
    std::string_view voorbeeld;
  };
  [[nodiscard]] std::span<const Link> Links() const { return links_; }

 protected:
  void BijLaden() override;

 private:
  static const std::string_view kLabelVoor;

  void OKButtonKlik();
  void BewaarLinks();

  HTMLParamSoort soort_;
  PaginaTeksten& teksten_;
  std::array<Link, 5> links_{{{EmailAdres, "Email", teksten_.email, "naam@example.org"},
                              {EmailTekst, "EmailLabel", teksten_.emailTekst, "Schrijf me... (*)"},
                              {HomePageURL, "HomePage", teksten_.homePage, "index.htm"},
                              {URLTekstTekst, "HomePageLink", teksten_.homePageTekst,
                               "mijn home page (http://www.example.org)"},
                              {URLLabelTekst, "HomePageLabel", teksten_.homePageLabel, "Naar"}}};
};

}  // namespace lb77
