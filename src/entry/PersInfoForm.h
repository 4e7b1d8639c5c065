// Shows the summary of one person.
#pragma once

#include "forms/Formulier.h"

namespace lb77 {

class Hoofdmodule;

// Shows person HuidigPersoonNr.
class PersInfoForm final : public Formulier {
 public:
  explicit PersInfoForm(Hoofdmodule& hoofd);

  Teller PNr{*this, "PNr", "Persoonsnummer:"};
  Tekstblok InfoTekst{*this, "InfoTekst"};
  Knop OKButton{*this, "OKButton", "&OK"};

 protected:
  void BijLaden() override;

 private:
  Hoofdmodule& hoofd_;
};

}  // namespace lb77
