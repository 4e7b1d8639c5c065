// The list of persons: fifteen a page, in record order, with an optional filter on the name.
#pragma once

#include <cstdint>

#include "entry/NaamFilter.h"
#include "forms/Formulier.h"
#include "forms/Rij.h"

namespace lb77 {

class Hoofdmodule;

// HuidigPersoonNr says where a page starts, and holds the last number shown once it is built; a
// page that shows nobody leaves it at its start. Closed, it is the person chosen, or 0.
class ZoekPrs final : public Formulier {
 public:
  static constexpr int kRijen = 15;

  explicit ZoekPrs(Hoofdmodule& hoofd);

  Rij<Knop, kRijen> RecordNrPrs{*this, "RecordNrPrs", 1, ""};
  Rij<Teller, kRijen> VoorNmPrs{*this, "VoorNmPrs", 1};
  Rij<Teller, kRijen> AchterNmPrs{*this, "AchterNmPrs", 1};
  Rij<Teller, kRijen> Periode{*this, "Periode", 1};
  Rij<Knop, kRijen> InfoPersoon{*this, "InfoPersoon", 1, "i"};
  Rij<Knop, kRijen> NaarPa{*this, "NaarPa", 1, ""};
  Rij<Knop, kRijen> NaarMa{*this, "NaarMa", 1, ""};
  Knop Vorige{*this, "Vorige", "V&orige"};
  Knop Volgende{*this, "Volgende", "&Volgende"};
  Knop NaarNr{*this, "NaarNr", "&Naar Nummer"};
  Knop FilterButton{*this, "FilterButton", "Start Filter"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  void LaadPagina();
  [[nodiscard]] bool IsToonbaar() const;
  void VulRij(int rij, std::int16_t nr);
  static void ToonOuder(Knop& knop, std::int16_t nr);
  void ToonRij(int rij, bool zichtbaar);
  void BeginBij(std::int32_t nr);
  void GaNaarRecord(std::int32_t nr);
  void VolgendeKlik();
  void VorigeKlik();
  [[nodiscard]] std::int32_t VorigeMetFilter();
  void NaarNrKlik();
  void FilterButtonKlik();
  void InfoPersoonKlik(int rij);
  void RecordNrPrsKlik(int rij);
  void ZetHuidig(int rij);
  void BackButtonKlik();

  Hoofdmodule& hoofd_;
  NaamFilter filter_;
};

}  // namespace lb77
