// The dialog in which a remark is written.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/InvoerFormulier.h"
#include "entry/OpmDelen.h"
#include "entry/OpmTekst.h"
#include "entry/OpmVraag.h"
#include "forms/Velden.h"

namespace lb77 {

// Nothing is written before Opslaan, and nothing when nothing was changed.
class WijzigOpm final : public InvoerFormulier {
 public:
  // `regel` is 1 for the first remark of the rubric, 11 for the second; one that is not there yet
  // is made.
  WijzigOpm(Hoofdmodule& hoofd, OpmVraag vraag, std::int16_t regel);

  OpmKop Kop{*this};
  Tekstblok OpmTekst{*this, "OpmTekst", "Opmerking:"};
  OpmVinkjes Bij{*this};
  Knop Opslaan{*this, "Opslaan", "&Opslaan"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // False when its owner could not be read, which has been told.
  [[nodiscard]] bool Geopend() const { return geopend_; }

 protected:
  void BijLaden() override;

 private:
  void OpslaanKlik();
  void BackButtonKlik();
  [[nodiscard]] bool IsGewijzigd();
  // The lines to be stored; nothing when the user goes on editing.
  [[nodiscard]] std::optional<OpmRegels> NieuweRegels();
  void Schrijf(const OpmRegels& regels);

  OpmVraag vraag_;
  std::int16_t opmRegel_;
  bool geopend_ = false;
  std::int16_t begin_ = 0;
  OpmInhoud inhoud_;
  std::string getoond_;
};

}  // namespace lb77
