// The list of persons: fifteen a page, in record order, with an optional filter on the name, and a
// field that searches while one types.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "entry/NaamFilter.h"
#include "entry/NaamIndex.h"
#include "forms/Bladeraar.h"
#include "forms/Formulier.h"
#include "forms/Keuzen.h"
#include "forms/Regels.h"
#include "forms/Weergave.h"

namespace lb77 {

class Hoofdmodule;
class PersoonLB77;

// One person of the list.
struct ZoekRij {
  ZoekRij(Formulier& formulier, int nummer);

  Knop RecordNrPrs;
  Teller VoorNmPrs;
  Teller AchterNmPrs;
  Teller Periode;
  Knop InfoPersoon;
  Knop NaarPa;
  Knop NaarMa;

  // The person in the buffer, who is record `nr`.
  void Toon(PersoonLB77& persoon, std::int16_t nr);
  // A parent who is not known (0) has no button.
  void ToonOuders(std::int16_t pa, std::int16_t ma);
  void Verberg() { ZetZichtbaar(false); }

 private:
  void ZetZichtbaar(bool zichtbaar);
};

// HuidigPersoonNr says where a page starts, and holds the last number shown once it is built; a
// page that shows nobody leaves it at its start. Closed, it is the person chosen, or 0.
//
// While Zoeknaam holds a word the list shows those whose names hold it, from the first, and its
// pages are counted among them.
class ZoekPrs final : public Formulier, public Bladeraar {
 public:
  static constexpr int kRijen = 15;

  explicit ZoekPrs(Hoofdmodule& hoofd);

  Tekstvak Zoeknaam{*this, "Zoeknaam", "&Zoek naam:", 40};
  Label Treffers{*this, "Treffers"};
  Regels<ZoekRij, kRijen> Personen{*this, 1};
  Knop Vorige{*this, "Vorige", "V&orige"};
  Knop Volgende{*this, "Volgende", "&Volgende"};
  Knop NaarNr{*this, "NaarNr", "&Naar Nummer"};
  Knop FilterButton{*this, "FilterButton", "Start Filter"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  void Blader(int stap) override;

 protected:
  void BijLaden() override;
  // The arrows go from row to row, PageUp and PageDown from page to page.
  void BijToets(ToetsGebeurtenis& toets) override;

 private:
  void LaadPagina();
  [[nodiscard]] bool IsToonbaar() const;
  void VulRij(ZoekRij& rij, std::int16_t nr);
  void BeginBij(std::int32_t nr);
  void GaNaarRecord(std::int32_t nr);
  void ZoeknaamWijziging();
  void ZoeknaamToets(ToetsGebeurtenis& toets);
  [[nodiscard]] bool ZoektNaam() const { return zoekt_; }
  void ZoekTreffers();
  void NeemNummer();
  void WisZoeknaam();
  // The first number from `nr` on that the list may show.
  [[nodiscard]] std::int32_t Vanaf(std::int32_t nr) const;
  // Shows the hits from that one on, the first being 0.
  void BeginBijTreffer(std::size_t treffer);
  [[nodiscard]] int RijMetFocus() const;
  [[nodiscard]] int LaatsteRij() const;
  void StapRij(int stap);
  void ZetFocusOpRij(int rij);
  void HerstelFocus();
  void VolgendeKlik();
  void VorigeKlik();
  [[nodiscard]] std::int32_t VorigeMetFilter();
  void NaarNrKlik();
  void FilterButtonKlik();
  void RecordNrPrsKlik(const ZoekRij& rij);
  // On a name or the years.
  void DeelDubbelklik(const ZoekRij& rij) { RecordNrPrsKlik(rij); }
  void InfoPersoonKlik(const ZoekRij& rij);
  void NaarPaKlik(const ZoekRij& rij);
  void NaarMaKlik(const ZoekRij& rij);
  void ZetHuidig(const ZoekRij& rij);
  void BackButtonKlik();

  Hoofdmodule& hoofd_;
  NaamFilter filter_;
  NaamIndex namen_;  // built at the first key
  bool zoekt_ = false;
  std::vector<std::int16_t> treffers_;
  std::size_t eersteTreffer_ = 0;
};

}  // namespace lb77
