// The dialog in which one person is entered or changed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/CorrectieVak.h"
#include "entry/DatumVak.h"
#include "entry/GezindteVak.h"
#include "entry/HuwWijzigRij.h"
#include "entry/InvoerVak.h"
#include "entry/PersoonVak.h"
#include "entry/PlaatsVak.h"
#include "entry/RecordNrVak.h"
#include "entry/RecordVelden.h"
#include "forms/Regels.h"
#include "forms/Weergave.h"

namespace lb77 {

class Koppelingen;

// Edits HuidigPersoonNr; -1 enters a new person. Afterwards HuidigPersoonNr is the person, or -1 when
// there is none.
class WijzigPersoon final : public InvoerFormulier {
 public:
  // `ouders` is the relation that a new person is a child of, 0 for none.
  explicit WijzigPersoon(Hoofdmodule& hoofd, std::int16_t ouders = 0);

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
  RecordNrVak RelNrOuders{*this, "RelNrOuders", "Relatie van de ouders:", BestandSoort::Relaties,
                          Vervolgtest::GeenVervolg};
  PersoonVak Pa{*this, "Pa", {.nrBijschrift = "Vader:"}};
  PersoonVak Ma{*this, "Ma", {.nrBijschrift = "Moeder:"}};
  Regels<HuwWijzigRij, 5> Partners{*this, 1};
  Teller AlgPersOpmTekst{*this, "AlgPersOpmTekst", "Opmerking:"};
  Knop Opslaan{*this, "Opslaan", "&Opslaan"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  // Loading.
  void BindVelden();
  void ZetLeesnamen();
  [[nodiscard]] bool NeemRecord();
  [[nodiscard]] bool NeemBestaand();
  [[nodiscard]] bool NeemVrijNummer();
  void ToonOuders(std::int16_t relatie);
  void ToonPartners();
  void ToonPeriodes();
  void VulAlsKind();

  // Entering and leaving a field.
  void GeslachtBetreden();
  [[nodiscard]] bool GeslachtVerlaten();
  [[nodiscard]] bool CorrVerlaten();
  [[nodiscard]] bool RelNrOudersVerlaten();

  // The chain of Opslaan, in its order; False ends it, with the focus where it is to be.
  void OpslaanKlik();
  [[nodiscard]] bool IsInOrde();
  [[nodiscard]] bool MagGeslacht();
  [[nodiscard]] bool IsChronologisch();
  [[nodiscard]] bool ZoekOpNaam(PersoonVak& ouder, std::string_view geslacht);
  [[nodiscard]] bool HoortBijNaam(PersoonVak& ouder, std::string_view naam);
  [[nodiscard]] bool VindRelatie();
  [[nodiscard]] bool KloptRelatie();
  [[nodiscard]] bool HeeftNummer();
  [[nodiscard]] bool MaakLos();
  [[nodiscard]] bool MaakVast();
  [[nodiscard]] bool Schrijf();

  [[nodiscard]] Koppelingen Koppel() const;
  [[nodiscard]] std::string Omschrijving() const;
  [[nodiscard]] bool GeslachtIsVast() const;
  [[nodiscard]] bool Weiger(Bediening& veld, std::string_view melding);
  void HerstelOuders();
  void BackButtonKlik();

  RecordVelden velden_;
  std::int16_t ouders_;     // whose child is entered
  std::int16_t nr_ = -1;    // what RecordNr shows
  bool bestaat_ = false;    // the record is there
  std::string OudGeslacht;  // what stood there when the field got the focus
  bool geweigerd_ = false;  // the user knows that his partners stand in its way
  std::int16_t oudeOuders_ = 0;
  bool losgemaakt_ = false;  // an earlier try took the person out of the old list
};

}  // namespace lb77
