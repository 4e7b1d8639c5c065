// One person of a GEDCOM file on the way into its record.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "exchange/ImpLoop.h"
#include "exchange/ImpVast.h"
#include "exchange/PersoonPaden.h"

namespace lb77 {

// The record lies in the buffer of PersoonLB77 from Begin to Bewaar.
class ImpPersoon {
 public:
  explicit ImpPersoon(ImpLoop& loop) : loop_(loop) {}

  // Reads the empty record. False after a failure, which its class has told, as all here.
  [[nodiscard]] bool Begin(std::int16_t nr);
  // Writes the record.
  [[nodiscard]] bool Bewaar();
  // Takes a line over; `pad` is its row, `waarde` what stands behind its tag.
  [[nodiscard]] bool Neem(const PersoonPad& pad, std::string_view waarde);

  // The qualifier of the last death or burial date in the file; a blank before the first.
  [[nodiscard]] char LaatsteOvlCorr() const { return laatsteOvlCorr_; }

 private:
  void NeemNaam(const PersoonPad& pad, std::string_view waarde);
  void NeemNaamDeel(const PersoonPad& pad, std::string_view waarde);
  void NeemDatum(const PersoonPad& pad, std::string_view waarde);
  void NeemPlaats(const PersoonPad& pad, std::string_view waarde);
  // A tag of our own.
  void NeemEigen(const PersoonPad& pad, std::string_view waarde);
  [[nodiscard]] bool NeemRelatie(std::string_view waarde);
  [[nodiscard]] bool MaakVervolg(std::string_view vierde);
  [[nodiscard]] bool ZetVijfde(std::string_view vijfde);
  void Zet(std::string_view veld, std::string_view waarde) {
    loop_.delen.persoon.Zet(veld, waarde);
  }
  // The same for a field that another line may have told exactly.
  void ZetVrij(std::string_view veld, std::string_view waarde) {
    if (!vast_.Bevat(veld)) Zet(veld, waarde);
  }

  ImpLoop& loop_;
  std::int16_t nr_ = 0;
  std::int16_t plaats_ = 0;  // that the last link led to
  ImpVast vast_;
  int relaties_ = 0;
  std::string voornaam_;  // as stored so far
  std::string achternaam_;
  char gebCorr_ = ' ';
  char ovlCorr_ = ' ';
  char laatsteOvlCorr_ = ' ';
};

}  // namespace lb77
