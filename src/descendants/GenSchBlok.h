// The form that gives each entry of a descendant chart its position.
#pragma once

#include "descendants/GenRij.h"
#include "reporting/TellerRegel.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

// Fills `rijen` and closes. The table and the positions outlive it.
class GenSchBlok final : public WerkFormulier {
 public:
  GenSchBlok(Hoofdmodule& hoofd, const GenTabel& tabel, bool centreren, GenRij& rijen);

  Label OpbouwLabel{*this, "OpbouwLabel", "Opbouwen van het schema."};
  TellerRegel Persoon;
  Label GeduldLabel{*this, "GeduldLabel", "Even geduld a.u.b."};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void Werk() override;

 private:
  const GenTabel& tabel_;
  bool centreren_;
  GenRij& rijen_;
};

}  // namespace lb77
