// How many descendants each child of a person has.
#pragma once

#include "reports/RptStamouder.h"

namespace lb77 {

class RptTakken final : public RptStamouder {
 public:
  explicit RptTakken(Hoofdmodule& hoofd);

  Teller AantalTakken{*this, "AantalTakken", "Aantal gevonden takken:"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  [[nodiscard]] bool BereidVoor(RecordBron& bron, const Verloop& verloop) override;
  [[nodiscard]] Uitslag Schrijf(RecordBron& bron, TekstSchrijver& uit,
                                const Verloop& verloop) override;
};

}  // namespace lb77
