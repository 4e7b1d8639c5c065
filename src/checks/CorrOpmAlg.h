// The dialog that mends the links of a remark record.
#pragma once

#include <cstdint>
#include <string>

#include "app/InvoerFormulier.h"
#include "entry/RecordNrVak.h"
#include "entry/RecordVelden.h"
#include "forms/Weergave.h"

namespace lb77 {

// The number of another remark record, and the line that stands there.
class OpmVerwijzingVak {
 public:
  // The line is named `naam` + "Regel".
  OpmVerwijzingVak(InvoerFormulier& formulier, const std::string& naam,
                   std::string_view bijschrift);

  class NrVak : public RecordNrVak {
   public:
    NrVak(OpmVerwijzingVak& geheel, InvoerFormulier& formulier, const std::string& naam,
          std::string_view bijschrift)
        : RecordNrVak(formulier, naam, bijschrift, BestandSoort::Opmerkingen, Vervolgtest::Geen),
          geheel_(geheel) {}

   protected:
    [[nodiscard]] bool OpVerlaten() override;

   private:
    OpmVerwijzingVak& geheel_;
  };

  NrVak Nr;
  Teller Regel;

  // Shows the line of the number that stands there. The buffer of remarks changes.
  void ToonRegel();

 private:
  InvoerFormulier& formulier_;
};

// Stores what the user typed in HuidigOpmNr, and changes nothing at the other end.
class CorrOpmAlg final : public InvoerFormulier {
 public:
  explicit CorrOpmAlg(Hoofdmodule& hoofd);

  Teller RecordNr{*this, "RecordNr", "Opmerkingenrecord:"};
  Teller Tekstregel{*this, "Tekstregel", "Tekst:"};
  Teller RubriekCode{*this, "RubriekCode", "Rubriek:"};
  Teller RubriekNaam{*this, "RubriekNaam"};
  InvoerVak HoortBijSoort{*this, "HoortBijSoort", "Hoort bij (P of R):", 1};
  InvoerVak BijRecordTekst{*this, "BijRecordTekst", "Nummer:", 5};
  Teller BijRecordNaam{*this, "BijRecordNaam"};
  OpmVerwijzingVak VolgRegel{*this, "VolgRegelTekst", "Volgende regel:"};
  OpmVerwijzingVak VolgOpm{*this, "VolgOpmTekst", "Volgende opmerking:"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  void Bind();
  void ToonRubriek();
  void ToonEigenaar();
  [[nodiscard]] bool HoortBijSoortVerlaten();
  [[nodiscard]] bool BijRecordTekstVerlaten();

  [[nodiscard]] bool BijRelatie() const;
  [[nodiscard]] BestandSoort Eigenaar() const;
  // The rubric with the sign of the owner's kind.
  [[nodiscard]] std::int32_t Rubriek() const;
  // False after a message.
  [[nodiscard]] bool Lees();
  [[nodiscard]] bool Bewaar();
  void OKButtonKlik();

  RecordVelden velden_;
  std::int16_t nr_ = -1;
  std::int32_t rubriek_ = 0;  // as it is stored
  std::string_view soort_;    // the kind of owner that it tells
};

}  // namespace lb77
