// The dialogs that mend the count in the admin record of persons, relations and places.
#pragma once

#include <cstdint>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/InvoerVak.h"
#include "forms/Weergave.h"
#include "store/BestandSoort.h"
#include "store/RecordRaam.h"

namespace lb77 {

// What tells one of these dialogs from another.
struct CorrAdmSoort {
  std::string_view naam;
  std::string_view titel;
  BestandSoort bestand;
  RecordRaam& (*record)(Hoofdmodule& hoofd);
  std::int16_t (*laatste)(Hoofdmodule& hoofd);  // the last record of the file
};

extern const CorrAdmSoort kCorrPrsAdm;
extern const CorrAdmSoort kCorrRelAdm;
extern const CorrAdmSoort kCorrPltsAdm;

// Shows the count that record 1 states beside the one that the file has, and stores another.
class CorrAdm final : public InvoerFormulier {
 public:
  CorrAdm(const CorrAdmSoort& soort, Hoofdmodule& hoofd);

  Teller aantal_in_rec1{*this, "aantal_in_rec1", "Aantal volgens het administratierecord:"};
  Teller gevonden_aantal{*this, "gevonden_aantal", "Aantal gevonden in het bestand:"};
  InvoerVak nieuw_aantal{*this, "nieuw_aantal", "Nieuw aantal:", 5};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  [[nodiscard]] bool Nieuw_aantalVerlaten();
  [[nodiscard]] bool Bewaar(std::int16_t aantal);
  void OKButtonKlik();

  const CorrAdmSoort& soort_;
  std::int16_t inRec1_ = 0;
  std::int16_t gevonden_ = 0;
};

// Said when record 1 can not be read (stop symbol).
inline constexpr std::string_view kLeesfoutAdmin = "Leesfout administratierecord.";

// Warns of what storing in record 1 may do; True when the user goes on all the same.
[[nodiscard]] bool WilAdminOpslaan(Gesprek& gesprek);

}  // namespace lb77
