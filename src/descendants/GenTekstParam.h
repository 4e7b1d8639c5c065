// The options of the descendant reports in words: the text and its index.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "descendants/GenParam.h"
#include "reporting/HTMLParam.h"

namespace lb77 {

// What tells one dialog from another. The index leads to the page of the text; the text has remarks
// and references to parents.
struct GenTekstParamSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view nummers;  // the question of OokNrsBox
  bool isIndex = false;
};

inline constexpr GenTekstParamSoort kGenTxtParam{"GenTxtParam",
                                                 "Genealogie / Parenteel Uitvoeropties",
                                                 "Ook Persoons- en Relatienummers uitvoeren ?"};
inline constexpr GenTekstParamSoort kGenIdxParam{"GenIdxParam",
                                                 "Index Genealogie / Parenteel Uitvoeropties",
                                                 "Ook Persoonsnummers uitvoeren ?", true};

// The links of a page.
inline constexpr HTMLParamSoort kGenHTMLParam{
    "GenHTMLParam", "Genealogie / Parenteel Uitvoeropties voor Internet", kGenSectie, "genealogie"};

// OK puts the choices into `opties` and, when the user wants them kept, into the settings.
// BackButton stops the chain.
class GenTekstParam final : public GenParam {
 public:
  GenTekstParam(const GenTekstParamSoort& soort, Hoofdmodule& hoofd, GenOpties& opties);

  Keuzevak PerTakBox{
      *this, "PerTakBox", "Uitvoer per tak of per generatie ?", {"Per tak", "Per generatie"}};
  JaNeeVak OokNrsBox;
  std::optional<JaNeeVak> OokOpmBox;
  std::optional<JaNeeVak> VerwijsBox;
  std::optional<Tekstvak> HTMLfileTekst;
  TitelVelden Titels;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  void Bewaar() override;

 private:
  [[nodiscard]] std::vector<OptieRij> Rijen();

  OptieTabel keuzen_;
};

}  // namespace lb77
