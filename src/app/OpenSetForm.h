// The dialog that opens another file set.
#pragma once

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"
#include "forms/Formulier.h"

namespace lb77 {

class OpenSetForm final : public Formulier {
 public:
  OpenSetForm(Hoofdmodule& hoofd, MenuWindow& menu);

  Keuzelijst SetPicklist{*this, "SetPicklist", "Selecteer een Bestandenset"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop CancelButton{*this, "CancelButton", "&Annuleren"};

 protected:
  void BijLaden() override;

 private:
  void OKButtonKlik();
  void CancelButtonKlik();

  Hoofdmodule& hoofd_;
  MenuWindow& menu_;
};

}  // namespace lb77
