// The dialogs that add a range of records to the selection of an export: of persons, of relations.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "entry/InvoerVak.h"
#include "exchange/SelectieLijst.h"
#include "forms/Keuzen.h"
#include "forms/Regels.h"
#include "forms/Weergave.h"
#include "store/BestandSoort.h"

namespace lb77 {

// What tells the two apart: names and texts, the file, and what is shown beside a number.
struct ExpSelSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view vraag;
  std::string_view veld;
  std::string_view van;
  std::string_view tot;
  InvoerSoort invoer;
  std::span<const std::string_view> ernaast;
  std::string_view zoek;  // without a name there is no search
  BestandSoort bestand;
  std::int16_t (*laatste)(Hoofdmodule& hoofd);
  // The texts beside a number, in the order of `ernaast`.
  std::vector<std::string> (*wie)(Hoofdmodule& hoofd, std::int16_t nr);
  std::string_view vol;  // the message of a full list
};

extern const ExpSelSoort kExpSelPers;
extern const ExpSelSoort kExpSelRel;

// One end of the range, and who that is.
struct ExpSelRij {
  ExpSelRij(InvoerFormulier& formulier, int nummer, const ExpSelSoort& soort);

  void Toon(const std::vector<std::string>& teksten);
  void MaakLeeg();

  InvoerVak RecordNr;
  std::deque<Teller> Ernaast;
  std::optional<Knop> ZoekPersButton;
};

class ExpSel final : public InvoerFormulier {
 public:
  ExpSel(const ExpSelSoort& soort, Hoofdmodule& hoofd, SelectieLijst& lijst);

  Label VraagLabel;
  Regels<ExpSelRij, 2> RecordNr;
  Knop OKButton{*this, "OKButton", "&Voeg toe"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // The list had no room for all that was asked for.
  [[nodiscard]] bool Vol() const { return vol_; }

 protected:
  void BijLaden() override;

 private:
  [[nodiscard]] bool RecordNrVerlaten(ExpSelRij& rij);
  void ZoekPersButtonKlik(ExpSelRij& rij);
  void OKButtonKlik();
  void Toon(ExpSelRij& rij, std::int32_t nr);
  void VoegToe(std::int32_t van, std::int32_t tot);

  const ExpSelSoort& soort_;
  SelectieLijst& lijst_;
  bool vol_ = false;
};

}  // namespace lb77
