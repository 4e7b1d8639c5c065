// The form that computes an ancestor table and shows how far it is.
#pragma once

#include "ancestors/KwstTabel.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

// Fills `tabel`. HuidigPersoonNr is -1 afterwards when no report can follow.
class KwstBereken final : public WerkFormulier {
 public:
  KwstBereken(Hoofdmodule& hoofd, const KwstOpties& opties, KwstTabel& tabel);

  Label OpbouwLabel{*this, "OpbouwLabel", "Opbouwen van de kwartierstaat."};
  Label PersNrLabel{*this, "PersNrLabel", "Bezig met persoon:"};
  Teller PersoonsNr{*this, "PersoonsNr"};
  Label KwartierenLabel{*this, "KwartierenLabel", "Aantal kwartieren:"};
  Teller Kwartieren{*this, "Kwartieren"};
  Label GeduldLabel{*this, "GeduldLabel", "Even geduld a.u.b."};
  Label MaximumLabel{*this, "MaximumLabel", "Maximum aantal kwartieren bereikt..."};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  void Werk() override;

 private:
  const KwstOpties& opties_;
  KwstTabel& tabel_;
};

}  // namespace lb77
