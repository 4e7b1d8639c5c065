// Merging two places: which two, and the walk that replaces one by the other.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/InvoerVak.h"
#include "forms/Weergave.h"
#include "reporting/TellerRegel.h"

namespace lb77 {

// The number of a place, with its name and province.
class PlaatsNrVak {
 public:
  // The controls are named PlaatsNr, PltsNm and Prov with `achtervoegsel` behind.
  PlaatsNrVak(InvoerFormulier& formulier, std::string_view achtervoegsel,
              std::string_view bijschrift);

  // kept: F2 searches a person here too.
  class NrVak : public InvoerVak {
   public:
    NrVak(PlaatsNrVak& geheel, InvoerFormulier& formulier, const std::string& naam,
          std::string_view bijschrift);

   protected:
    [[nodiscard]] bool OpVerlaten() override;

   private:
    PlaatsNrVak& geheel_;
  };

  NrVak Nr;
  Teller Nm;
  Teller Prov;

  // The number typed, 0 for none.
  [[nodiscard]] std::int16_t Code() const;
  // "12(Delft,ZH)"
  [[nodiscard]] std::string Omschrijving() const;

 private:
  void Toon();

  InvoerFormulier& formulier_;
};

class CorrPltsAlg final : public InvoerFormulier {
 public:
  // Opens with `oud` as the old place; 0 leaves the field empty.
  explicit CorrPltsAlg(Hoofdmodule& hoofd, std::int16_t oud = 0);

  PlaatsNrVak Oud{*this, "Oud", "Oude Plaatscode:"};
  Teller Verwijzingen{*this, "Verwijzingen", "Aantal verwijzingen:"};
  PlaatsNrVak Nieuw{*this, "Nieuw", "Nieuwe Plaatscode:"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 private:
  // Counts what OK would replace.
  [[nodiscard]] bool OudNrVerlaten();
  [[nodiscard]] bool IsCompleet();
  void OKButtonKlik();
};

// Works when it becomes active, and can't be left while it does.
class CorrPltsTemp final : public InvoerFormulier {
 public:
  // `label` names the action.
  CorrPltsTemp(Hoofdmodule& hoofd, std::int16_t oud, std::int16_t nieuw, std::string_view label);

  TellerRegel PersoonsNr{*this, {"PersoonsNr", "PersNrLabel", "Bezig met persoonsrecord:"}};
  TellerRegel RelatieNr{*this, {"RelatieNr", "RelNrLabel", "Bezig met relatierecord:"}};
  TellerRegel Vervangingen{*this, {"Vervangingen", "VervangingenLabel", "Aantal vervangingen:"}};
  Label GeduldLabel{*this, "GeduldLabel", "Even geduld a.u.b."};
  Knop OKButton{*this, "OKButton", "&OK"};

 protected:
  void BijLaden() override;
  void BijActiveren() override;
  [[nodiscard]] bool MagSluiten() override { return !Bezig(); }

 private:
  [[nodiscard]] bool Vervang();

  std::int16_t oud_;
  std::int16_t nieuw_;
  std::string label_;
};

}  // namespace lb77
