// The dialog for the links of an HTML report; one class for all reports, by a table of texts.
#pragma once

#include <string_view>

#include "forms/Formulier.h"
#include "reporting/HTMLPagina.h"

namespace lb77 {

class Hoofdmodule;

// What tells one HTML dialog from another: its name, title, the settings section of its report, and
// the chapter of the manual.
struct HTMLParamSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view sectie;
  std::string_view hulp;
};

inline constexpr HTMLParamSoort kKwHTMLParam{
    "KwHTMLParam", "Kwartierstaat Uitvoeropties voor Internet", "KWST", "kwartierstaat"};

// Asks e-mail address and home page for the foot of a page. OK puts them into `teksten` and into
// the settings; BackButton sets HuidigPersoonNr to -1.
class HTMLParam final : public Formulier {
 public:
  HTMLParam(const HTMLParamSoort& soort, Hoofdmodule& hoofd, PaginaTeksten& teksten);

  Tekstvak EmailAdres{*this, "EmailAdres", "E-mail adres:", 81};
  Tekstvak EmailTekst{*this, "EmailTekst", "Geef de bijbehorende tekst:", 81};
  Tekstvak HomePageURL{*this, "HomePageURL", "Eigen Home Page adres (URL):", 81};
  Tekstvak URLLabelTekst{*this, "URLLabelTekst", kLabelVoor, 81};
  Tekstvak URLTekstTekst{*this, "URLTekstTekst", "Geef de tekst van de link:", 81};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  static const std::string_view kLabelVoor;

  void OKButtonKlik();
  void BewaarLinks();
  void BackButtonKlik();

  HTMLParamSoort soort_;
  Hoofdmodule& hoofd_;
  PaginaTeksten& teksten_;
};

}  // namespace lb77
