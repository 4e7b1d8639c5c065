// What the parameter dialogs of the descendant reports share.
#pragma once

#include <string_view>

#include "app/JaNeeVak.h"
#include "descendants/GenOpties.h"
#include "reporting/GeneratiesVak.h"
#include "reporting/GrensVak.h"
#include "reporting/VerslagParam.h"

namespace lb77 {

// What tells one dialog from another in the part that they share.
struct GenParamSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view sectie;  // of the settings; the age is kept in GEN for all
  Generatiegrens generaties = kTotTachtig;
  GrensVakSoort leeftijd;
};

inline constexpr std::string_view kGenSectie = "GEN";

// Asks the rules by which descendants are followed. A derived form declares its other fields, the
// texts around the report and its buttons, and hands them to Koppel.
class GenParam : public VerslagParam {
 public:
  GeneratiesVak MaxGen;
  Keuzevak ZonenBox{*this,
                    "ZonenBox",
                    "Zonen:",
                    {"Geen Zonen", "Zonen met nageslacht", "Zonen met Relatie(s)",
                     "Zonen ouder dan .. jaar", "Alle Zonen"}};
  Keuzevak DochtersBox{*this,
                       "DochtersBox",
                       "Dochters:",
                       {"Geen Dochters", "Dochters met nageslacht", "Dochters met Relatie(s)",
                        "Ongehuwde Moeders", "Dochters ouder dan .. jaar", "Alle Dochters"}};
  GrensVak GrensLeeftijd;
  JaNeeVak PrsHerhaalBox{*this, "PrsHerhaalBox", "Persoonsherhaling blijven volgen ?"};
  JaNeeVak UitsluitBox{*this, "UitsluitBox", "Takken uitsluiten ?"};
  JaNeeVak InHTMLBox{*this, "InHTMLBox", "Uitvoer voor Internet (HTML) ?"};

 protected:
  GenParam(const GenParamSoort& soort, Hoofdmodule& hoofd, GenOpties& opties);

  // Parts of the derived form, which outlive this call. `ok` keeps the choices and closes, `terug`
  // stops the chain.
  void Koppel(const OptieTabel& keuzen, TitelVelden& titels, Knop& ok, Knop& terug);
  void BijLaden() override;
  // What OK does before it closes.
  virtual void Bewaar();
  [[nodiscard]] GenOpties& Opties() { return opties_; }

 private:
  void OkKlik();

  GenOpties& opties_;
  OptieTabel regels_;
  OptieTabel leeftijd_;
};

}  // namespace lb77
