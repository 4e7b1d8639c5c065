#include "entry/VraagRecordNr.h"

#include <utility>

#include "text/Getallen.h"

namespace lb77 {

VraagRecordNr::VraagRecordNr(std::string_view titel, Controle controle)
    : Formulier("VraagRecordNr", titel) {
  ZetHulpOnderwerp("zoeken");
  RecordNr.ZetFilter(AlleenCijfers);
  RecordNr.ZetEnter(EnterSoort::OK);
  if (controle) {
    RecordNr.BijVerlaten([this, recordNrVerlaten = std::move(controle)] {
      return recordNrVerlaten(RecordNr.Tekst());
    });
  }
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(RecordNr);
}

void VraagRecordNr::OKButtonKlik() {
  nr_ = Getalwaarde(RecordNr.Tekst());
  Sluit();
}

}  // namespace lb77
