// Asks the names that the list of persons is to show.
#pragma once

#include "entry/NaamFilter.h"
#include "forms/Formulier.h"
#include "store/PersoonVelden.h"

namespace lb77 {

// OK puts both texts into the filter; Terug leaves it as it is.
class VraagFilter final : public Formulier {
 public:
  explicit VraagFilter(NaamFilter& filter);

  Label VraagLabel{*this, "VraagLabel", "Alleen Personen tonen met de naam:"};
  // One more than the longest name, for the "*".
  Tekstvak VoorNm{*this, "VoorNm", "Voornamen:", persoonveld::Voornaam.breedte + 1};
  Tekstvak AchterNm{*this, "AchterNm", "Achternaam:", persoonveld::Achternaam.breedte + 1};
  Label TipJoker{*this, "TipJoker", "Gebruik een sterretje aan het eind als joker"};
  Label TipLetters{*this, "TipLetters",
                   "Het filter maakt onderscheid tussen HOOFDLETTERS en kleine letters"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 private:
  void OKButtonKlik();

  NaamFilter& filter_;
};

}  // namespace lb77
