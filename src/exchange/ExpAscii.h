// The dialog of the fixed-width export.
#pragma once

#include <memory>

#include "exchange/ExportForm.h"

namespace lb77 {

class ExpAscii final : public ExportForm {
 public:
  explicit ExpAscii(Hoofdmodule& hoofd);

 protected:
  [[nodiscard]] bool IsErnaast() override { return true; }
  [[nodiscard]] std::unique_ptr<ExpSchrijver> MaakSchrijver(UitvoerBestanden& bestanden) override;
};

}  // namespace lb77
