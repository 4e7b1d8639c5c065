// The dialog that lists the safety copies of the active set and puts one back.
#pragma once

#include <vector>

#include "app/Hoofdmodule.h"
#include "app/Veiligheidskopie.h"
#include "forms/Formulier.h"
#include "text/Letterlijk.h"

namespace lb77 {

// The last copy stands first.
class KopieTerugzetten final : public Formulier {
 public:
  explicit KopieTerugzetten(Hoofdmodule& hoofd);

  Keuzelijst KopieLijst{*this, "KopieLijst", "Veiligheidskopieën:"_w};
  Knop OKButton{*this, "OKButton", "Terug&zetten"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  void OKButtonKlik();

  Hoofdmodule& hoofd_;
  std::vector<KopieRij> rijen_;  // as the list
};

}  // namespace lb77
