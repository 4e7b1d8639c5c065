// The card of a person.
#pragma once

#include <cstdint>

#include "entry/HuwKaartRij.h"
#include "entry/KaartVelden.h"
#include "entry/RecordKaart.h"
#include "forms/Regels.h"
#include "forms/Velden.h"
#include "store/PersoonLB77.h"
#include "store/Rubrieken.h"

namespace lb77 {

// What makes the card of person `nr`; -1 has the user enter a new one first.
[[nodiscard]] KaartVraag ToonPersoonVraag(Hoofdmodule& hoofd, std::int16_t nr);

// HuidigPersoonNr is the person shown, -1 for none.
class ToonPersoon final : public RecordKaartVan<PersoonLB77> {
 public:
  ToonPersoon(Hoofdmodule& hoofd, std::int16_t nr);

  Teller Geslacht{*this, "Geslacht", "Geslacht:"};
  Teller VoorNm{*this, "VoorNm", "Voornamen:"};
  OpmKnop VoorNmOpm{*this, "VoorNmOpm", persoonrubriek::kVoornaam, VoorNm};
  Teller AchterNm{*this, "AchterNm", "Achternaam:"};
  OpmKnop AchterNmOpm{*this, "AchterNmOpm", persoonrubriek::kAchternaam, AchterNm};
  Label GebLabel{*this, "GebLabel", "Geboren"};
  Teller GebCorr{*this, "GebCorr"};
  Teller GebDatum{*this, "GebDatum"};
  OpmKnop GebDatumOpm{*this, "GebDatumOpm", persoonrubriek::kGebDatum, GebDatum};
  PlaatsToon GebPlts{*this, "GebPlts"};
  OpmKnop GebPltsOpm{*this, "GebPltsOpm", persoonrubriek::kGebPlaats, GebPlts.Nm};
  Label DoopLabel{*this, "DoopLabel", "Gedoopt"};
  Teller DoopDatum{*this, "DoopDatum"};
  OpmKnop DoopDatumOpm{*this, "DoopDatumOpm", persoonrubriek::kDoopDatum, DoopDatum};
  PlaatsToon DoopPlts{*this, "DoopPlts"};
  OpmKnop DoopPltsOpm{*this, "DoopPltsOpm", persoonrubriek::kDoopPlaats, DoopPlts.Nm};
  Label ReligieLabel{*this, "ReligieLabel", "Gezindte"};
  GezindteToon Religie{*this, "Religie"};
  OpmKnop ReligieOpm{*this, "ReligieOpm", persoonrubriek::kReligie, Religie.Tekst};
  Teller BeroepTekst{*this, "BeroepTekst", "Beroep:"};
  OpmKnop BeroepOpm{*this, "BeroepOpm", persoonrubriek::kBeroep, BeroepTekst};
  Label OvlLabel{*this, "OvlLabel", "Overleden"};
  Teller OvlCorr{*this, "OvlCorr"};
  Teller OvlDatum{*this, "OvlDatum"};
  OpmKnop OvlDatumOpm{*this, "OvlDatumOpm", persoonrubriek::kOvlDatum, OvlDatum};
  PlaatsToon OvlPlts{*this, "OvlPlts"};
  OpmKnop OvlPltsOpm{*this, "OvlPltsOpm", persoonrubriek::kOvlPlaats, OvlPlts.Nm};
  Label BegrLabel{*this, "BegrLabel", "Begraven"};
  Teller BegrDatum{*this, "BegrDatum"};
  OpmKnop BegrDatumOpm{*this, "BegrDatumOpm", persoonrubriek::kBegrDatum, BegrDatum};
  PlaatsToon BegrPlts{*this, "BegrPlts"};
  OpmKnop BegrPltsOpm{*this, "BegrPltsOpm", persoonrubriek::kBegrPlaats, BegrPlts.Nm};
  PersoonToon Pa{*this, "RecordNrPa", "Pa", "Vader:", "Vader"};
  Verwijzing RelNrOuders{*this, "RelNrOuders", "Relatie:", "Relatie van de ouders"};
  PersoonToon Ma{*this, "RecordNrMa", "Ma", "Moeder:", "Moeder"};
  Regels<HuwKaartRij, 5> Partners{*this, 1};
  Tekstblok AlgPersOpmTekst{*this, "AlgPersOpmTekst", "Opmerking:"};
  OpmKnop AlgPersOpm{*this, "AlgPersOpm", persoonrubriek::kAlgemeen, AlgPersOpmTekst};
  Knop VorigPersoon{*this, "VorigPersoon", "Vorige"};
  Knop VolgendPersoon{*this, "VolgendPersoon", "Volgende"};
  Knop OpmButton{*this, "OpmButton", "Opmerkingen"};
  Knop HuwVolg{*this, "HuwVolg", "Volgorde"};
  Knop NieuwButton{*this, "NieuwButton", "&Nieuw"};
  Knop WijzigButton{*this, "WijzigButton", "&Wijzig"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  [[nodiscard]] KaartVraag Opnieuw() const override;

 protected:
  void ToonWijzig() override;
  void ToonRecord() override;

 private:
  void ToonGebeurtenissen();
  void ToonPeriodes();
  void ToonOpmerkingen();
  void ToonOuders(std::int16_t relatie);
  void ToonPartners(bool magNieuw);
  void PaNrKlik();
  void MaNrKlik();
  void RelNrOudersKlik();
  void RelNrPKlik(int rij);
  void RecordNrPKlik(int rij);
  void OpmButtonKlik();
  void HuwVolgKlik();
  void NaarRelatie(int nr, std::string_view geen);
  void NaarPersoon(int nr, std::string_view geen);
};

}  // namespace lb77
