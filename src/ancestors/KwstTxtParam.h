// The options of the ancestor report.
#pragma once

#include "ancestors/KwstOpties.h"
#include "ancestors/KwstVelden.h"
#include "app/JaNeeVak.h"
#include "reporting/KetenFormulier.h"
#include "reporting/OptieTabel.h"
#include "reporting/PersoonKop.h"
#include "reporting/TitelVelden.h"

namespace lb77 {

class Hoofdmodule;

// OK puts the choices into `opties` and, when the user wants them kept, into the settings.
// BackButton stops the chain.
class KwstTxtParam final : public KetenFormulier {
 public:
  KwstTxtParam(Hoofdmodule& hoofd, KwstOpties& opties);

  PersoonKop Proband;
  KwstNummerVelden Nummers;
  Keuzevak BroerZusBox{*this,
                       "BroerZusBox",
                       "Broers en Zussen:",
                       {"Zonder Broers en Zussen", "Met Broers en Zussen van de Proband",
                        "Met Alle Broers en Zussen"}};
  JaNeeVak OokNrsBox{*this, "OokNrsBox", "Ook Persoons- en Relatienummers uitvoeren ?"};
  JaNeeVak OokOpmBox{*this, "OokOpmBox", "Ook Opmerkingen uitvoeren ?"};
  JaNeeVak KwHerhaalBox{*this, "KwHerhaalBox", "Kwartierherhaling blijven volgen ?"};
  JaNeeVak InHTMLBox{*this, "InHTMLBox", "Uitvoer voor Internet (HTML) ?"};
  TitelVelden Titels;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  static constexpr std::string_view kSectie = "KWST";

  void OKButtonKlik();

  KwstOpties& opties_;
  OptieTabel keuzen_{kSectie,
                     {{BroerZusBox, "SoortUitv", 1, opties_.KwBroerZus},
                      {OokNrsBox, "OokNummers", true, opties_.KwOokNrs},
                      {OokOpmBox, "OokOpm", true, opties_.KwOokOpm},
                      {KwHerhaalBox, "VolgHerh", true, opties_.KwVolgHerh},
                      {InHTMLBox, "HTML", false, opties_.KwInHTML}}};
};

}  // namespace lb77
