// One relation of a GEDCOM file on the way into its record.
#pragma once

#include <cstdint>
#include <string_view>

#include "exchange/ImpLoop.h"
#include "exchange/ImpVast.h"
#include "exchange/ImpVelden.h"
#include "exchange/RelatiePaden.h"

namespace lb77 {

// The record lies in the buffer of RelatieLB77 from Begin to Bewaar.
class ImpRelatie {
 public:
  explicit ImpRelatie(ImpLoop& loop) : loop_(loop) {}

  // Reads the empty record. False after a failure, which its class has told, as all here.
  [[nodiscard]] bool Begin(std::int16_t nr);
  // Writes the record.
  [[nodiscard]] bool Bewaar();
  // Takes a line over; `pad` is its row, `waarde` what stands behind its tag. `laatsteOvlCorr` is
  // the qualifier of the last death or burial date in the file.
  [[nodiscard]] bool Neem(const RelatiePad& pad, std::string_view waarde, char laatsteOvlCorr);

 private:
  void NeemDatum(const RelatiePad& pad, std::string_view waarde, char laatsteOvlCorr);
  void NeemEigen(const RelatiePad& pad, std::string_view waarde);
  void NeemEigenDatum(std::string_view waarde);
  [[nodiscard]] bool NeemKind(std::string_view waarde);
  [[nodiscard]] bool MaakVervolg(std::string_view kind);
  [[nodiscard]] bool ZetInVervolg(std::string_view kind);
  void Zet(std::string_view veld, std::string_view waarde) {
    loop_.delen.relatie.Zet(veld, waarde);
  }
  // The same from the line at hand, which is lost when a later one gives the field something else.
  void ZetVeld(std::string_view veld, std::string_view waarde);
  // The same for a field that another line may have told exactly.
  void ZetVrij(std::string_view veld, std::string_view waarde) {
    if (!vast_.Bevat(veld)) ZetVeld(veld, waarde);
  }

  ImpLoop& loop_;
  std::int16_t nr_ = 0;
  std::int16_t plaats_ = 0;  // that the last link led to
  ImpVast vast_;
  int kinderen_ = 0;
  ImpVelden velden_;
};

}  // namespace lb77
