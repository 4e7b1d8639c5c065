// The dialogs that mend the links of a person or a relation, and of their continuation records.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "checks/VerwijzingVak.h"
#include "entry/RecordVelden.h"
#include "store/Rubrieken.h"

namespace lb77 {

// A field that holds a link, and the control that shows it.
struct CorrVerwijzing {
  std::string_view naam;
  std::string_view bijschrift;
  Veld veld;
  BestandSoort naar;
};

// The links that stand in a row.
struct CorrLijst {
  std::string_view naam;
  std::string_view bijschrift;
  std::span<const Veld> velden;
  BestandSoort naar;
  int eerste;  // the number that the user knows the first by
};

// What the record of an owner has besides, and a continuation record has not.
struct CorrEigenaar {
  Veld opmRecord;
  Veld opmCode;
  std::span<const RubriekNaam> rubrieken;
};

// What tells one of these dialogs from another.
struct CorrSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view recordNaam;  // "Persoonsrecord"
  BestandSoort bestand;
  std::span<const CorrVerwijzing> koppen;
  CorrLijst lijst;
  const CorrEigenaar* eigenaar;  // null for a continuation record
  std::string_view schrijfFout;  // said of a write that failed, besides what the system says
};

extern const CorrSoort kCorrPrsAlg;
extern const CorrSoort kCorrRelAlg;
extern const CorrSoort kCorrPrsVlg;
extern const CorrSoort kCorrRelVlg;

// Says of a rubric whether the owner has remarks on it: "+" or "-".
class RubriekVak : public InvoerVak {
 public:
  RubriekVak(InvoerFormulier& formulier, int nummer, std::int16_t rubriek);

  void Toon(std::int32_t opmCode);
  [[nodiscard]] bool Aan() const { return Tekst() == "+"; }
  // What it adds to an OpmCode.
  [[nodiscard]] std::int32_t Code() const { return Aan() ? rubriek_ : 0; }

 protected:
  [[nodiscard]] bool OpVerlaten() override;

 private:
  std::int16_t rubriek_;
};

// Stores what the user typed in HuidigPersoonNr or HuidigRelatieNr, and changes nothing on the other
// side of a link.
class CorrVerwijzingen final : public InvoerFormulier {
 public:
  CorrVerwijzingen(const CorrSoort& soort, Hoofdmodule& hoofd);

  Teller RecordNr;
  std::deque<VerwijzingVak> Koppen;
  std::deque<VerwijzingVak> Lijst;
  std::optional<RecordNrVak> Vervolgrecord;
  std::optional<RecordNrVak> EersteOpm;
  std::deque<RubriekVak> RubriekTekst;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  void Bind();
  // The last link of a list, or minus the number of the continuation record.
  void BindLaatste(const Veld& veld);

  [[nodiscard]] std::int16_t Volger() const;
  [[nodiscard]] RecordRaam& Record() const;
  // False after a message.
  [[nodiscard]] bool Lees();
  [[nodiscard]] bool Schrijf();
  // Stores what the user changed; False after a message.
  [[nodiscard]] bool Bewaar();
  void WaarschuwZonderOpm();
  void OKButtonKlik();

  const CorrSoort& soort_;
  RecordVelden velden_;
  std::int16_t nr_ = -1;
};

}  // namespace lb77
