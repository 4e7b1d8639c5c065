// The dialog of an export of selected records.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "exchange/ExpSchrijver.h"
#include "exchange/ExpSel.h"
#include "exchange/SelectieLijst.h"
#include "exchange/UitvoerForm.h"
#include "forms/Keuzen.h"
#include "forms/Weergave.h"

namespace lb77 {

// What tells one such export from another.
struct ExportSoort {
  UitvoerSoort uitvoer;
  std::string_view start;            // the name of the start button
  std::string_view keuze = {};       // the name of a tick box; without one there is none
  std::string_view keuzeTekst = {};  // its caption
};

// A derived form is a row of this kind, and makes what writes.
class ExportForm : public UitvoerForm {
 public:
  Knop KiesAllesButton{*this, "KiesAllesButton", "Kies &Alles"};
  Knop KiesPersButton{*this, "KiesPersButton", "Kies &Personen"};
  Knop KiesRelButton{*this, "KiesRelButton", "Kies &Relaties"};
  Knop KiesGenButton{*this, "KiesGenButton", "Kies &Genealogie"};
  Knop KiesKwstButton{*this, "KiesKwstButton", "Kies &Kwartierstaat"};
  Knop KiesBronButton{*this, "KiesBronButton", "Kies &Bronnen"};
  Teller AantalPersonen{*this, "AantalPersonen", "Aantal personen:"};
  Teller AantalRelaties{*this, "AantalRelaties", "Aantal relaties:"};
  Teller AantalBronnen{*this, "AantalBronnen", "Aantal bronnen:"};
  Knop ToonLijstButton{*this, "ToonLijstButton", "&Toon lijst met geselecteerde records"};
  Teller PersonenGedaan{*this, "PersonenGedaan", "Personen gedaan:"};
  Teller RelatiesGedaan{*this, "RelatiesGedaan", "Relaties gedaan:"};
  Teller BronnenGedaan{*this, "BronnenGedaan", "Bronnen gedaan:"};
  std::optional<Vinkje> Keuze;
  Knop StartButton;
  Knop BackButton{*this, "BackButton", "&Terug"};

  // Something that was chosen did not fit in the selection.
  [[nodiscard]] bool Vol() const { return vol_; }

 protected:
  // `soort` must outlive the form.
  ExportForm(const ExportSoort& soort, Hoofdmodule& hoofd);

  // What writes a run; it lives as long as the files.
  [[nodiscard]] virtual std::unique_ptr<ExpSchrijver> MaakSchrijver(
      UitvoerBestanden& bestanden) = 0;
  [[nodiscard]] const ExpSelectie& Selectie() const { return selectie_; }

  void BijLaden() override;
  [[nodiscard]] std::int16_t AantalRecords() final;
  [[nodiscard]] bool MagBeginnen() final;
  void WisVoortgang() final { ToonGedaan({}); }
  void Schrijf(UitvoerBestanden& bestanden) final;
  void SchrijfLogSlot(ExpUitvoer& log) final;
  void MeldVoltooid() final;

 private:
  void KiesAllesButtonKlik();
  void KiesPersButtonKlik();
  void KiesRelButtonKlik();
  void Kies(const ExpSelSoort& soort, SelectieLijst& lijst);
  void ToonLijstButtonKlik();
  void ToonAantallen();
  void ToonGedaan(const ExpTelling& telling);

  ExpSelectie selectie_;
  std::unique_ptr<ExpSchrijver> schrijver_;
  ExpTelling telling_;
  std::optional<ExpTelling> getoond_;  // what the counters say
  bool vol_ = false;
};

}  // namespace lb77
