// The dialog that makes a file set and opens it.
#pragma once

#include <string>

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"
#include "forms/Formulier.h"

namespace lb77 {

class NieuweSet final : public Formulier {
 public:
  NieuweSet(Hoofdmodule& hoofd, MenuWindow& menu);

  Tekstvak SetNaam{*this, "SetNaam", "Geef de naam van de nieuwe Bestandenset:", 8};
  Tekstvak SetOmsch{*this, "SetOmsch", "Geef de omschrijving van de nieuwe Bestandenset:", 50};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 private:
  [[nodiscard]] bool SetNaamVerlaten();
  void OKButtonKlik();
  [[nodiscard]] bool Aanvaardbaar(const std::string& naam);
  void MaakActief(const std::string& omschrijving);

  Hoofdmodule& hoofd_;
  MenuWindow& menu_;
};

}  // namespace lb77
