// The choices of a family sheet: which relation of the head, and which layout.
#pragma once

#include "app/JaNeeVak.h"
#include "descendants/GezinOpties.h"
#include "forms/Regels.h"
#include "output/Blik.h"
#include "reporting/KetenFormulier.h"
#include "reporting/OptieTabel.h"
#include "reporting/PersoonKop.h"

namespace lb77 {

// A relation of the head with the partner in it; hidden when there is none.
struct GezinRij {
  GezinRij(Formulier& formulier, int nummer);

  Optie KiesPartner;
  Teller RelNrPartner;
  Teller NrPartner;
  Teller VoorNaamPartner;
  Teller AchterNaamPartner;
  Teller PeriodePartner;

  // "?????" stands for what can't be read, "<onbekend>" for a partner or a name that is not known.
  void Toon(PersoonLB77& persoon, const GezinBlik& gezin);
  void Verberg();

 private:
  void ZetZichtbaar(bool zichtbaar);
};

// OK puts the choices into `opties`, and HuidigRelatieNr on the relation that was chosen, and keeps
// the choices when the user wants that. BackButton stops the chain, and so does a head who can't be
// read.
class GezinSchParam final : public KetenFormulier {
 public:
  GezinSchParam(Hoofdmodule& hoofd, GezinOpties& opties);

  PersoonKop Gezinshoofd{*this, "Hoofd"};
  Regels<GezinRij, 5> Partners{*this, 1};
  Keuzevak SoortBladBox{
      *this, "SoortBladBox", "Soort gezinsblad:", {"Compact", "Uitgebreid", "F6-Blad"}};
  JaNeeVak OokNrsBox{*this, "OokNrsBox", "Ook Persoons- en Relatienummers uitvoeren ?"};
  JaNeeVak OokOpmBox{*this, "OokOpmBox", "Ook Opmerkingen uitvoeren ?"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  void BijActiveren() override;

 private:
  void ToonPartners();
  void OKButtonKlik();

  GezinOpties& opties_;
  bool gelezen_ = false;  // the head
  int onleesbaar_ = 0;    // the record that his list of relations breaks off at
  OptieTabel keuzen_{"GEZIN",
                     {{SoortBladBox, "SoortUitv", 0, opties_.GezinSoort},
                      {OokNrsBox, "OokNummers", true, opties_.GezinOokNrs},
                      {OokOpmBox, "OokOpm", true, opties_.GezinOokOpm}}};
};

}  // namespace lb77
