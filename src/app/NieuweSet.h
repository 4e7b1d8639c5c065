// The dialog that makes a file set and opens it.
#pragma once

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"
#include "app/SetMaken.h"
#include "forms/Formulier.h"

namespace lb77 {

class NieuweSet final : public Formulier {
 public:
  NieuweSet(Hoofdmodule& hoofd, MenuWindow& menu);

  Tekstvak SetNaam{*this, "SetNaam", "Geef de naam van de nieuwe Bestandenset:", kMaxSetNaam};
  Tekstvak SetOmsch{*this, "SetOmsch",
                    "Geef de omschrijving van de nieuwe Bestandenset:", kMaxSetOms};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 private:
  [[nodiscard]] bool SetNaamVerlaten();
  void OKButtonKlik();

  Hoofdmodule& hoofd_;
  MenuWindow& menu_;
};

}  // namespace lb77
