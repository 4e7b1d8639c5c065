// The questions for the record to be mended, and the way from there to its dialog.
#pragma once

#include <cstdint>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/RecordNrVak.h"
#include "forms/Weergave.h"

namespace lb77 {

// What tells one question from another.
struct CorrVraagSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view vraag;
  BestandSoort bestand;
  Vervolgtest vervolgtest;
  std::int16_t Volgers::*volger;            // gets the number; -1 when the form was left by Terug
  void (*toonDialoog)(Hoofdmodule& hoofd);  // which mends that record
};

extern const CorrVraagSoort kVraagPersRecord;
extern const CorrVraagSoort kVraagPersVervolg;
extern const CorrVraagSoort kVraagRelRecord;
extern const CorrVraagSoort kVraagRelVervolg;
extern const CorrVraagSoort kVraagOpmRecord;

class CorrVraag final : public InvoerFormulier {
 public:
  CorrVraag(const CorrVraagSoort& soort, Hoofdmodule& hoofd);

  Label VraagLabel;
  RecordNrVak RecordNr;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 private:
  void Sluit(std::int16_t nr);
  void OKButtonKlik();

  const CorrVraagSoort& soort_;
};

// What the menu starts: the question, and the dialog that mends the record unless it was left by
// Terug.
void Corrigeer(Hoofdmodule& hoofd, const CorrVraagSoort& soort);

}  // namespace lb77
