// Asks into which set a GEDCOM file is to be read: a new one unless the user chooses another.
#pragma once

#include <filesystem>

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"
#include "app/SetMaken.h"
#include "forms/Formulier.h"

namespace lb77 {

class InWelkeSet final : public Formulier {
 public:
  InWelkeSet(Hoofdmodule& hoofd, MenuWindow& menu, std::filesystem::path bestand);

  Label BestandLabel{*this, "BestandLabel"};
  Optie NieuweOptie{*this, "NieuweOptie", "in een &nieuwe bestandenset"};
  Tekstvak SetNaam{*this, "SetNaam", "Naam:", kMaxSetNaam};
  Tekstvak SetOmsch{*this, "SetOmsch", "Omschrijving:", kMaxSetOms};
  Optie BestaandeOptie{*this, "BestaandeOptie",
                       "in een &bestaande bestandenset; wat erin staat blijft"};
  Keuzelijst SetPicklist{*this, "SetPicklist"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // The set is open and the file can be read into it.
  [[nodiscard]] bool Gekozen() const { return gekozen_; }
  // It was made here, directory and all.
  [[nodiscard]] bool IsNieuw() const { return gekozen_ && nieuw_; }

 protected:
  void BijLaden() override;

 private:
  void NieuweOptieWijziging();
  void BestaandeOptieWijziging();
  void OKButtonKlik();
  void ToonKeuze();
  [[nodiscard]] bool MaakNieuwe();
  [[nodiscard]] bool OpenBestaande();

  Hoofdmodule& hoofd_;
  MenuWindow& menu_;
  const std::filesystem::path bestand_;
  bool gekozen_ = false;
  bool nieuw_ = false;
};

}  // namespace lb77
