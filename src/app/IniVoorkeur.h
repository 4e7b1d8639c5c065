// The settings dialog of the genealogical preferences.
#pragma once

#include "app/InstelFormulier.h"
#include "app/JaNeeVak.h"

namespace lb77 {

// A new separator of dates holds from the next start of the main window on.
class IniVoorkeur final : public InstelFormulier {
 public:
  explicit IniVoorkeur(Hoofdmodule& hoofd);

  Keuzevak NaamCapsBox{*this,
                       "NaamCapsBox",
                       "Uitvoer naam in HOOFDLETTERS:",
                       {"Nee", "Achternaam", "Voornamen en achternaam"}};
  JaNeeVak FamNaamUitvoerBox{*this, "FamNaamUitvoerBox", "Uitvoer familienaam bij kinderen:"};
  Keuzevak DatumSeparatorBox{*this, "DatumSeparatorBox", "Scheidingsteken in datums:", {"-", "."}};
  JaNeeVak CapsZoekenBox{*this, "CapsZoekenBox", "Onderscheid hoofdletters bij zoeken ? (*)"};
  Keuzevak HuwInkortenBox{*this,
                          "HuwInkortenBox",
                          "Inkorten huwelijksgegevens ? (*)",
                          {"Zonder huw.(kerk)", "Zonder otr.", "Nee"}};
  Label HuwInkortenUitleg{*this, "HuwInkortenUitleg",
                          "(*) Zodra otr., huw.(wet) en huw.(kerk) bekend zijn"};
  Label DOSUitleg{*this, "DOSUitleg",
                  "(*) Deze optie wordt slechts in de oude DOS-versie gebruikt"};
  Label InvoerUitleg{*this, "InvoerUitleg",
                     "Invoer hier is uitsluitend vanwege compatibiliteit opgenomen."};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};
};

}  // namespace lb77
