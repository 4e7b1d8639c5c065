// The dialog in which one relation is entered or changed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/CorrectieVak.h"
#include "entry/DatumVak.h"
#include "entry/GezindteVak.h"
#include "entry/PersoonVak.h"
#include "entry/PlaatsVak.h"
#include "entry/RecordVelden.h"
#include "forms/Regels.h"
#include "forms/Weergave.h"

namespace lb77 {

// A rubric of the relation, and the remark on it.
struct RelatieOpmRij {
  RelatieOpmRij(Formulier& formulier, int nummer);

  Label OpmLabel;
  Teller OpmTekst;
};

// Edits HuidigRelatieNr; -1 enters a new relation. Afterwards HuidigRelatieNr is the relation, or -1
// when there is none.
class WijzigRelatie final : public InvoerFormulier {
 public:
  explicit WijzigRelatie(Hoofdmodule& hoofd);

  // The form's own checks see to the numbers.
  static constexpr PersoonVakSoort kPartner{.controle = PersoonControle::Geen};

  Teller RecordNr{*this, "RecordNr", "Relatienummer:"};
  Label ManLabel{*this, "ManLabel", "Partner1"};
  PersoonVak Man{*this, "Man", kPartner};
  Label VrouwLabel{*this, "VrouwLabel", "Partner2"};
  PersoonVak Vrouw{*this, "Vrouw", kPartner};
  Label OtrLabel{*this, "OtrLabel", "Ondertrouw"};
  DatumVak OtrDatum{*this, "OtrDatum"};
  PlaatsVak OtrPlts{*this, "OtrPlts", ""};
  Wissellabel WetHuwLabel{*this, "WetHuwLabel", {"Huwelijk (wet)", "Samenwonen", "Partnerschap"}};
  CorrectieVak HuwCorr{*this, "HuwCorr"};
  DatumVak WetHuwDatum{*this, "WetHuwDatum"};
  PlaatsVak WHuwPlts{*this, "WHuwPlts", ""};
  GezindteVak HuwSoort{*this, "HuwSoort", "Soort huwelijk:"};
  Wissellabel KHuwLabel{*this, "KHuwLabel", {"Huwelijk (kerk)", "Scheiding"}};
  DatumVak KHuwDatum{*this, "KHuwDatum"};
  PlaatsVak KHuwPlts{*this, "KHuwPlts", ""};
  GezindteVak Religie{*this, "Religie", "Religie:"};
  Teller Kindertal{*this, "Kindertal", "Kinderen:"};
  Regels<RelatieOpmRij, 9> Opmerkingen{*this, 1};
  Knop Opslaan{*this, "Opslaan", "&Opslaan"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  // One partner: what tells him from the other.
  struct Partner;
  [[nodiscard]] Partner DeMan();
  [[nodiscard]] Partner DeVrouw();

  // Loading.
  void BindVelden();
  void ZetLeesnamen();
  [[nodiscard]] bool NeemRecord();
  [[nodiscard]] bool NeemBestaand();
  [[nodiscard]] bool NeemNieuw();
  void ToonPartnerLabels(std::string_view man, std::string_view vrouw);
  void ToonOpmerkingen(std::int16_t opmCode, std::int16_t opmRecord);
  void ToonKindertal();

  // Leaving a field.
  [[nodiscard]] bool HuwCorrVerlaten();
  [[nodiscard]] bool RecordNrVerlaten(const Partner& partner);
  [[nodiscard]] bool MagSekse(const Partner& partner);

  // The chain of Opslaan, in its order; False ends it, with the focus where it is to be.
  void OpslaanKlik();
  [[nodiscard]] bool IsInOrde();
  [[nodiscard]] bool IsChronologisch();
  [[nodiscard]] bool ZoekOpNaam(PersoonVak& partner);
  [[nodiscard]] bool HoortBijNaam(const Partner& partner);
  [[nodiscard]] bool HeeftPlaats(const Partner& partner);
  [[nodiscard]] bool Schrijf();
  void Koppel(const Partner& partner);

  [[nodiscard]] std::string Omschrijving() const;
  [[nodiscard]] bool Weiger(Bediening& veld, std::string_view melding);
  void BackButtonKlik();

  RecordVelden velden_;
  std::int16_t nr_ = -1;  // what RecordNr shows
  bool bestaat_ = false;  // the record is there
  std::int16_t OudeMan = 0;
  std::int16_t OudeVrouw = 0;
  std::string OudeTekst;  // what stood in the number of a partner when it got the focus
};

}  // namespace lb77
