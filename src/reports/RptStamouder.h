// The statistics on the descendants of a person: what both dialogs share.
#pragma once

#include <cstdint>
#include <string_view>

#include "entry/InvoerVak.h"
#include "reports/LijstForm.h"

namespace lb77 {

class RptStamouder : public LijstForm {
 public:
  Label UitlegLabel;
  // Asked for on OK, not when it is left.
  InvoerVak PersNr;
  Knop ZoekButton{*this, "ZoekButton", "&Zoek Persoon"};

 protected:
  RptStamouder(const LijstSoort& soort, Hoofdmodule& hoofd, std::string_view uitleg);

  // The number typed; 0 for one that no record can have.
  [[nodiscard]] std::int16_t Stamouder() const;
  [[nodiscard]] bool IsGenoeg() override;

 private:
  void ZoekButtonKlik();
};

}  // namespace lb77
