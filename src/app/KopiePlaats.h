// The dialog of the place where safety copies are made.
#pragma once

#include "app/Hoofdmodule.h"
#include "forms/Formulier.h"
#include "text/Letterlijk.h"

namespace lb77 {

class KopiePlaats final : public Formulier {
 public:
  explicit KopiePlaats(Hoofdmodule& hoofd);

  Padvak KopieMap{*this, "KopieMap", "Veiligheidskopieën in:"_w};
  Knop BrowseKopieMap{*this, "BrowseKopieMap", "Bladeren..."};
  Label KopieUitleg{*this, "KopieUitleg", "(Bijvoorbeeld een stick; leeg: de map KOPIE)"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  void BrowseKopieMapKlik();
  void OKButtonKlik();

  Hoofdmodule& hoofd_;
};

}  // namespace lb77
