// The dialog that writes selected records to a GEDCOM file.
#pragma once

#include <memory>

#include "exchange/ExportForm.h"

namespace lb77 {

class ExpGedcom final : public ExportForm {
 public:
  explicit ExpGedcom(Hoofdmodule& hoofd);

 protected:
  // kept: of the prescribed file what was written stays.
  [[nodiscard]] bool IsErnaast() override { return Keuze->Gekozen(); }
  [[nodiscard]] std::unique_ptr<ExpSchrijver> MaakSchrijver(UitvoerBestanden& bestanden) override;
};

}  // namespace lb77
