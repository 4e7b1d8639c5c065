// The card of a relation.
#pragma once

#include <cstdint>

#include "entry/KaartVelden.h"
#include "entry/RecordKaart.h"
#include "forms/Velden.h"
#include "store/RelatieLB77.h"
#include "store/Rubrieken.h"

namespace lb77 {

// What makes the card of relation `nr`; -1 has the user enter a new one first.
[[nodiscard]] KaartVraag ToonRelatieVraag(Hoofdmodule& hoofd, std::int16_t nr);

// HuidigRelatieNr is the relation shown, -1 for none.
class ToonRelatie final : public RecordKaartVan<RelatieLB77> {
 public:
  ToonRelatie(Hoofdmodule& hoofd, std::int16_t nr);

  Teller Kindertal{*this, "Kindertal", "Kinderen:"};
  Knop NaarKind{*this, "NaarKind", "&Kinderen"};
  Label ManLabel{*this, "ManLabel", "Man"};
  PersoonToon Man{*this, "NaarMan", "Man", "", "Man"};
  Label VrouwLabel{*this, "VrouwLabel", "Vrouw"};
  PersoonToon Vrouw{*this, "NaarVrouw", "Vrouw", "", "Vrouw"};
  Label OtrLabel{*this, "OtrLabel", "Ondertrouw"};
  Teller OtrDatum{*this, "OtrDatum"};
  OpmKnop OtrDatumOpm{*this, "OtrDatumOpm", relatierubriek::kOtrDatum, OtrDatum};
  PlaatsToon OtrPlts{*this, "OtrPlts"};
  OpmKnop OtrPltsOpm{*this, "OtrPltsOpm", relatierubriek::kOtrPlaats, OtrPlts.Nm};
  Label WetHuwLabel{*this, "WetHuwLabel", "Huwelijk (wet)"};
  Teller HuwCorr{*this, "HuwCorr"};
  Teller WetHuwDatum{*this, "WetHuwDatum"};
  OpmKnop WetHuwDatumOpm{*this, "WetHuwDatumOpm", relatierubriek::kWetHuwDatum, WetHuwDatum};
  PlaatsToon WHuwPlts{*this, "WHuwPlts"};
  OpmKnop WHuwPltsOpm{*this, "WHuwPltsOpm", relatierubriek::kWetHuwPlaats, WHuwPlts.Nm};
  Label HuwSoortLabel{*this, "HuwSoortLabel", "Soort huwelijk"};
  GezindteToon HuwSoort{*this, "HuwSoort"};
  OpmKnop HuwSoortOpm{*this, "HuwSoortOpm", relatierubriek::kHuwSoort, HuwSoort.Tekst};
  Label KHuwLabel{*this, "KHuwLabel", "Huwelijk (kerk)"};
  Teller KHuwDatum{*this, "KHuwDatum"};
  OpmKnop KHuwDatumOpm{*this, "KHuwDatumOpm", relatierubriek::kKHuwDatum, KHuwDatum};
  PlaatsToon KHuwPlts{*this, "KHuwPlts"};
  OpmKnop KHuwPltsOpm{*this, "KHuwPltsOpm", relatierubriek::kKHuwPlaats, KHuwPlts.Nm};
  Label ReligieLabel{*this, "ReligieLabel", "Gezindte"};
  GezindteToon Religie{*this, "Religie"};
  OpmKnop ReligieOpm{*this, "ReligieOpm", relatierubriek::kReligie, Religie.Tekst};
  Tekstblok AlgRelOpmTekst{*this, "AlgRelOpmTekst", "Opmerking:"};
  OpmKnop AlgRelOpm{*this, "AlgRelOpm", relatierubriek::kAlgemeen, AlgRelOpmTekst};
  Knop VorigeRelatie{*this, "VorigeRelatie", "Vorige"};
  Knop VolgendeRelatie{*this, "VolgendeRelatie", "Volgende"};
  Knop NieuwButton{*this, "NieuwButton", "&Nieuw"};
  Knop WijzigButton{*this, "WijzigButton", "&Wijzig"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  [[nodiscard]] KaartVraag Opnieuw() const override;

 protected:
  void ToonWijzig() override;
  void ToonRecord() override;

 private:
  void ToonGebeurtenissen();
  void ToonOpmerkingen();
  void ToonPartners();
  void ToonKindertal();
  void ManNrKlik();
  void VrouwNrKlik();
  void NaarKindKlik();
  void NaarPersoon(int nr, std::string_view geen);
};

}  // namespace lb77
