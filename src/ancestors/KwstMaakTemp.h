// The form that writes the ancestor report to its file.
#pragma once

#include <filesystem>

#include "ancestors/KwstTabel.h"
#include "reporting/WerkFormulier.h"

namespace lb77 {

// Writes `pad`. HuidigPersoonNr is -1 afterwards when there is no whole report to show.
class KwstMaakTemp final : public WerkFormulier {
 public:
  KwstMaakTemp(Hoofdmodule& hoofd, const KwstOpties& opties, const KwstTabel& tabel,
               std::filesystem::path pad);

  Label SchrijfLabel{*this, "SchrijfLabel", "Schrijven van de kwartierstaat."};
  Label KwartierenLabel{*this, "KwartierenLabel", "Aantal kwartieren:"};
  Teller Kwartieren{*this, "Kwartieren"};
  Label GeduldLabel{*this, "GeduldLabel", "Even geduld a.u.b."};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void Werk() override;

 private:
  const KwstOpties& opties_;
  const KwstTabel& tabel_;
  std::filesystem::path pad_;
};

}  // namespace lb77
