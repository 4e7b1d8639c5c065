// The options of the ancestor reports in words: the text and its index.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "ancestors/KwstParam.h"
#include "ancestors/KwstVelden.h"
#include "app/JaNeeVak.h"

namespace lb77 {

// What tells one dialog from another.
struct KwstTekstParamSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view nummers;  // the question of OokNrsBox
  bool metOpm;               // asks for remarks
  bool metHTMLfile;          // asks for the file to which the numbers lead
};

inline constexpr KwstTekstParamSoort kKwstTxtParam{"KwstTxtParam", "Kwartierstaat Uitvoeropties",
                                                   "Ook Persoons- en Relatienummers uitvoeren ?",
                                                   true, false};
inline constexpr KwstTekstParamSoort kKwstIdxParam{
    "KwstIdxParam", "Uitvoeropties voor Index op Kwartierstaat in Tekstvorm",
    "Ook Persoonsnummers uitvoeren ?", false, true};

// OK puts the choices into `opties` and, when the user wants them kept, into the settings.
// BackButton stops the chain.
class KwstTekstParam final : public KwstParam {
 public:
  KwstTekstParam(const KwstTekstParamSoort& soort, Hoofdmodule& hoofd, KwstOpties& opties);

  KwstNummerVelden Nummers;
  Keuzevak BroerZusBox{*this,
                       "BroerZusBox",
                       "Broers en Zussen:",
                       {"Zonder Broers en Zussen", "Met Broers en Zussen van de Proband",
                        "Met Alle Broers en Zussen"}};
  JaNeeVak OokNrsBox;
  std::optional<JaNeeVak> OokOpmBox;
  JaNeeVak KwHerhaalBox{*this, "KwHerhaalBox", "Kwartierherhaling blijven volgen ?"};
  JaNeeVak InHTMLBox{*this, "InHTMLBox", "Uitvoer voor Internet (HTML) ?"};
  std::optional<Tekstvak> HTMLfileTekst;
  TitelVelden Titels;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  static constexpr std::string_view kSectie = "KWST";

  [[nodiscard]] std::vector<OptieRij> Rijen();
  void OKButtonKlik();

  OptieTabel keuzen_;
};

}  // namespace lb77
