// The dialog that takes a file set from the list and, if asked, from the disk.
#pragma once

#include <string>

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"
#include "forms/Formulier.h"

namespace lb77 {

class VerwijderSetForm final : public Formulier {
 public:
  VerwijderSetForm(Hoofdmodule& hoofd, MenuWindow& menu);

  Keuzelijst SetPicklist{*this, "SetPicklist", "Selecteer de Bestandenset:"};
  Optie DeleteNee{*this, "DeleteNee",
                  "alleen uit de lijst halen (bestanden op de schijf laten staan)"};
  Optie DeleteJa{*this, "DeleteJa", "uit de lijst halen en bestanden vernietigen (deleten)"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop CancelButton{*this, "CancelButton", "&Annuleren"};

 protected:
  void BijLaden() override;

 private:
  void OKButtonKlik();
  [[nodiscard]] bool Bevestigd();
  void CancelButtonKlik();
  void Verwijder();
  void VerwijderBestanden(const std::string& naam);

  Hoofdmodule& hoofd_;
  MenuWindow& menu_;
};

}  // namespace lb77
