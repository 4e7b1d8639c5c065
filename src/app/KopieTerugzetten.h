// The dialog that lists the safety copies of the active set and puts one back.
#pragma once

#include <vector>

#include "app/Hoofdmodule.h"
#include "app/Veiligheidskopie.h"
#include "forms/Formulier.h"
#include "text/Letterlijk.h"

namespace lb77 {

// Counts the copies when it becomes active, which may take a while, and can be left meanwhile. The last
// copy stands first.
class KopieTerugzetten final : public Formulier {
 public:
  explicit KopieTerugzetten(Hoofdmodule& hoofd);

  Keuzelijst KopieLijst{*this, "KopieLijst", "Veiligheidskopieën:"_w};
  Label TellingLabel{*this, "TellingLabel"};
  Knop OKButton{*this, "OKButton", "Terug&zetten"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  void BijActiveren() override;

 private:
  // False when the user wants to leave.
  [[nodiscard]] bool Tel();
  void OKButtonKlik();

  Hoofdmodule& hoofd_;
  std::vector<KopieRij> rijen_;  // as the list
};

}  // namespace lb77
