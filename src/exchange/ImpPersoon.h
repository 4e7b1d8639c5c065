// One person of a GEDCOM file on the way into its record.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/ImpLoop.h"
#include "exchange/ImpVast.h"
#include "exchange/ImpVelden.h"
#include "exchange/PersoonPaden.h"

namespace lb77 {

// The record lies in the buffer of PersoonLB77 from Begin to Bewaar.
class ImpPersoon {
 public:
  explicit ImpPersoon(ImpLoop& loop) : loop_(loop) {}

  // Reads the empty record. False after a failure, which its class has told, as all here.
  [[nodiscard]] bool Begin(std::int16_t nr);
  // No line of it follows any more.
  void RondAf();
  // Writes the record.
  [[nodiscard]] bool Bewaar();
  // Takes a line over; `pad` is its row, `waarde` what stands behind its tag.
  [[nodiscard]] bool Neem(const PersoonPad& pad, std::string_view waarde);

  // The qualifier of the last death or burial date in the file; a blank before the first.
  [[nodiscard]] char LaatsteOvlCorr() const { return laatsteOvlCorr_; }

 private:
  void NeemNaam(const PersoonPad& pad, std::string_view waarde);
  void NeemNaamDeel(const PersoonPad& pad, std::string_view waarde);
  void NeemBeroep(const PersoonPad& pad, std::string_view waarde);
  void NeemVoorvoegsel(std::string_view waarde);
  void TelOverschreven();
  void NeemDatum(const PersoonPad& pad, std::string_view waarde);
  void NeemPlaats(const PersoonPad& pad, std::string_view waarde);
  // A tag of our own.
  void NeemEigen(const PersoonPad& pad, std::string_view waarde);
  // The name behind a denomination whose code such a tag told.
  void HerzieGezindte(const PersoonPad& pad, std::string_view waarde);
  [[nodiscard]] bool NeemRelatie(std::string_view waarde);
  [[nodiscard]] bool MaakVervolg(std::string_view vierde);
  [[nodiscard]] bool ZetVijfde(std::string_view vijfde);
  void Zet(std::string_view veld, std::string_view waarde) {
    loop_.delen.persoon.Zet(veld, waarde);
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
  int relaties_ = 0;
  struct Voorvoegsel {
    std::int32_t regel;
    std::string tekst;
  };
  ImpVelden velden_;
  std::vector<Voorvoegsel> voorvoegsels_;  // which the surname should hold, too
  std::string voornaam_;                   // as stored so far
  std::string achternaam_;
  char gebCorr_ = ' ';
  char ovlCorr_ = ' ';
  char laatsteOvlCorr_ = ' ';
};

}  // namespace lb77
