// The dialog that mends the admin record of the remarks.
#pragma once

#include <cstdint>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/InvoerVak.h"
#include "forms/Weergave.h"

namespace lb77 {

// What tells one of the three counts from another.
struct OpmTellingSoort {
  std::string_view inRec1;
  std::string_view gevonden;
  std::string_view nieuw;
  std::string_view bijschrift;
  int laagste;
};

// A count of record 1: what it states, what the file has, and what it shall be.
struct OpmTelling {
  OpmTelling(InvoerFormulier& formulier, const OpmTellingSoort& soort);

  // An empty one stands for the count as it is; another lies in its bounds.
  class NieuwVak : public InvoerVak {
   public:
    NieuwVak(InvoerFormulier& formulier, std::string_view naam, int laagste);
    void ZetHoogste(int hoogste) { hoogste_ = hoogste; }

   protected:
    [[nodiscard]] bool OpVerlaten() override;

   private:
    int laagste_;
    int hoogste_ = 0;
  };

  Teller InRec1;
  Teller Gevonden;
  NieuwVak Nieuw;

  // Precondition: `aantal` is what record 1 states.
  void Toon(std::int16_t aantal, std::int32_t gevonden, int hoogste);
  // The count to store: `nu` when the user gave none.
  [[nodiscard]] std::int16_t Waarde(std::int16_t nu) const;
  [[nodiscard]] bool Gewijzigd() const { return Waarde(aantal_) != aantal_; }

 private:
  std::int16_t aantal_ = 0;
};

class CorrOpmAdm final : public InvoerFormulier {
 public:
  explicit CorrOpmAdm(Hoofdmodule& hoofd);

  OpmTelling Aantal{*this,
                    {"aantal_in_rec1", "gevonden_aantal", "nieuw_aantal", "Aantal records:", 1}};
  OpmTelling Gebruikt{
      *this,
      {"gebruikt_in_rec1", "gevonden_in_gebruik", "nieuw_in_gebruik", "Records in gebruik:", 1}};
  OpmTelling Ongebruikt{
      *this,
      {"ongebruikt_in_rec1", "gevonden_ongebruikt", "nieuw_ongebruikt", "Eerste vrije record:", 0}};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  [[nodiscard]] bool Bewaar();
  void OKButtonKlik();
};

}  // namespace lb77
