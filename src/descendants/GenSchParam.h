// The options of the descendant chart.
#pragma once

#include <string_view>

#include "descendants/GenParam.h"
#include "reporting/HTMLParam.h"

namespace lb77 {

inline constexpr std::string_view kGenSchSectie = "GENB";

// The links of a page with a chart.
inline constexpr HTMLParamSoort kGenSchHTMLParam{
    "GenHTMLParam", "Genealogie / Parenteel Uitvoeropties voor Internet", kGenSchSectie,
    "genealogie"};

// OK puts the choices into `opties` and, when the user wants them kept, into the settings.
// BackButton stops the chain.
class GenSchParam final : public GenParam {
 public:
  GenSchParam(Hoofdmodule& hoofd, GenOpties& opties);

  Keuzevak HorVerBox{*this, "HorVerBox", "Richting:", {"Horizontaal", "Verticaal"}};
  JaNeeVak CentreerBox{*this, "CentreerBox", "Ouders centreren ?"};
  Keuzevak OokDatumsBox{*this, "OokDatumsBox", "Datums:", {"Nee", "Jaartallen", "Volledig"}};
  Keuzevak OokVNamenBox{
      *this, "OokVNamenBox", "Voornamen:", {"Nee", "Alleen 1e", "Voorletters", "Volledig"}};
  GrensVak PosVNamen;
  GrensVak PosANamen;
  Keuzevak OokPartnersBox{
      *this, "OokPartnersBox", "Partners:", {"Nee", "Onder elkaar", "Naast elkaar"}};
  JaNeeVak OokVNrsBox{*this, "OokVNrsBox", "Ook Volgnummers ?"};
  JaNeeVak OokPNrsBox{*this, "OokPNrsBox", "Ook Persoonsnummers ?"};
  JaNeeVak OokRNrsBox{*this, "OokRNrsBox", "Ook Relatienummers ?"};
  TitelVelden Titels;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 private:
  OptieTabel keuzen_;
};

}  // namespace lb77
