// The dialog in which one person is entered or changed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/CorrectieVak.h"
#include "entry/DatumVak.h"
#include "entry/GezindteVak.h"
#include "entry/InvoerVak.h"
#include "entry/PartnerRij.h"
#include "entry/PersoonVak.h"
#include "entry/PlaatsVak.h"
#include "entry/RecordNrVak.h"
#include "entry/RecordVelden.h"
#include "forms/Regels.h"
#include "forms/Wissellabel.h"

namespace lb77 {

// Edits HuidigPersoonNr; -1 enters a new person. Afterwards HuidigPersoonNr is the person, or -1 when
// there is none.
class WijzigPersoon final : public InvoerFormulier {
 public:
  explicit WijzigPersoon(Hoofdmodule& hoofd);

  Teller RecordNr{*this, "RecordNr", "Persoonsnummer:"};
  InvoerVak Geslacht{*this, "Geslacht", "Geslacht:"};
  InvoerVak VoorNm{*this, "VoorNm", "Voornamen:"};
  InvoerVak AchterNm{*this, "AchterNm", "Achternaam:"};
  Label GebLabel{*this, "GebLabel", "Geboren"};
  CorrectieVak GebCorr{*this, "GebCorr"};
  DatumVak GebDatum{*this, "GebDatum"};
  PlaatsVak GebPlts{*this, "GebPlts", ""};
  Label DoopLabel{*this, "DoopLabel", "Gedoopt"};
  DatumVak DoopDatum{*this, "DoopDatum"};
  PlaatsVak DoopPlts{*this, "DoopPlts", ""};
  Label ReligieLabel{*this, "ReligieLabel", "Gezindte"};
  GezindteVak Religie{*this, "Religie", ""};
  Label OvlLabel{*this, "OvlLabel", "Overleden"};
  CorrectieVak OvlCorr{*this, "OvlCorr"};
  DatumVak OvlDatum{*this, "OvlDatum"};
  PlaatsVak OvlPlts{*this, "OvlPlts", ""};
  Wissellabel BegrLabel{*this, "BegrLabel", {"Begraven", "Crematie"}};
  DatumVak BegrDatum{*this, "BegrDatum"};
  PlaatsVak BegrPlts{*this, "BegrPlts", ""};
  InvoerVak BeroepTekst{*this, "BeroepTekst", "Beroep:"};
  RecordNrVak RelNrOuders;
  PersoonVak Pa;
  PersoonVak Ma;
  Regels<PartnerRij, 5> Partners{*this};
  Tekstblok AlgPersOpmTekst{*this, "AlgPersOpmTekst", "Algemene opmerking:"};
  Knop Opslaan{*this, "Opslaan", "&Opslaan"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  struct Ouder;

  void BindVelden();
  [[nodiscard]] bool NeemRecord();
  [[nodiscard]] bool NeemBestaand();
  [[nodiscard]] bool NeemNieuw();
  void ToonOuders(std::int16_t relatie);
  void ToonPartners();
  void ToonOpmerking(std::int16_t opmCode, std::int16_t opmRecord);
  void ToonPeriodes();
  [[nodiscard]] bool GeslachtVerlaten();
  [[nodiscard]] bool RelNrOudersVerlaten();

  // The chain of Opslaan, in its order; False ends it, with the focus where it is to be.
  void OpslaanKlik();
  [[nodiscard]] bool MagGeslacht();
  [[nodiscard]] bool IsChronologisch();
  [[nodiscard]] bool ZoekOpNaam(const Ouder& ouder);
  [[nodiscard]] bool HoortBijNaam(const Ouder& ouder);
  [[nodiscard]] bool VindRelatie();
  [[nodiscard]] bool KlopptRelatie();
  [[nodiscard]] bool MaakLos();
  [[nodiscard]] bool MaakVast();
  [[nodiscard]] bool Schrijf();

  [[nodiscard]] Ouder Vader();
  [[nodiscard]] Ouder Moeder();
  [[nodiscard]] bool GeslachtIsVast() const;
  [[nodiscard]] bool Weiger(Bediening& veld, std::string_view melding);
  void HerstelOuders();
  void BackButtonKlik();

  RecordVelden velden_;
  std::int16_t nr_ = -1;
  bool bestaat_ = false;
  std::string OudGeslacht;
  std::int16_t oudeOuders_ = 0;
  bool losgemaakt_ = false;  // an earlier try took the person out of the old list
};

}  // namespace lb77
