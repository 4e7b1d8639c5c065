// Shows the remarks on one field of a person or relation, one at a time.
#pragma once

#include <cstdint>

#include "app/InvoerFormulier.h"
#include "entry/OpmDelen.h"
#include "entry/OpmVraag.h"
#include "forms/Velden.h"

namespace lb77 {

class ToonOpm final : public InvoerFormulier {
 public:
  // `regel` is 1 for the first remark of the rubric, 11 for the second.
  ToonOpm(Hoofdmodule& hoofd, OpmVraag vraag, std::int16_t regel = 1);

  OpmKop Kop{*this};
  Tekstblok OpmTekst{*this, "OpmTekst", "Opmerking:"};
  OpmVinkjes Bij{*this};
  Knop MeerOpm{*this, "MeerOpm", "&Volgende"};
  Knop MaakMeer{*this, "MaakMeer", "&Meer"};
  Knop WijzigButton{*this, "WijzigButton", "&Wijzigen"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  // Reads the owner and the remark; closes when there is no owner.
  void Toon();
  [[nodiscard]] bool Bestaat(std::int16_t regel);
  void MeerOpmKlik();
  void MaakMeerKlik();
  void WijzigButtonKlik();
  void Wijzig();

  OpmVraag vraag_;
  std::int16_t opmRegel_;
  OpmEigenaar eigenaar_;
};

}  // namespace lb77
