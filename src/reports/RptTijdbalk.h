// When the descendants of a person lived.
#pragma once

#include "reports/RptStamouder.h"

namespace lb77 {

class RptTijdbalk final : public RptStamouder {
 public:
  explicit RptTijdbalk(Hoofdmodule& hoofd);

  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  [[nodiscard]] Uitslag Schrijf(RecordBron& bron, TekstSchrijver& uit,
                                const Verloop& verloop) override;
};

}  // namespace lb77
