// The field of a date.
#pragma once

#include <string>
#include <string_view>

#include "entry/InvoerVak.h"

namespace lb77 {

// Leaving it brings the date into its entry form and judges it. The blank mask gives way to an
// empty field for as long as the focus is here.
class DatumVak : public InvoerVak {
 public:
  explicit DatumVak(InvoerFormulier& formulier, std::string_view naam,
                    std::string_view bijschrift = {});

  // Shows a stored date. One that is damaged stays as it is shown until the user changes it.
  void Toon(std::string_view datum10);
  // No date: the blank mask, or nothing at all.
  [[nodiscard]] bool IsLeeg() const;

 protected:
  void OpBetreden() override;
  [[nodiscard]] bool OpVerlaten() override;

 private:
  std::string getoond_;
};

// True when the first date lies behind the second and the user, asked with `melding`, wants to mend
// that.
[[nodiscard]] bool WilCorrigeren(Gesprek& gesprek, const DatumVak& eerst, const DatumVak& later,
                                 std::string_view melding);

}  // namespace lb77
