#include "checks/CorrVraag.h"

#include "checks/CorrOpmAlg.h"
#include "checks/CorrVerwijzingen.h"

namespace lb77 {

namespace {

constexpr std::int16_t kGeen = -1;

template <const CorrSoort& kSoort>
void ToonVerwijzingen(Hoofdmodule& hoofd) {
  hoofd.gesprek.Toon<CorrVerwijzingen>(kSoort, hoofd);
}

void ToonOpmerking(Hoofdmodule& hoofd) {
  hoofd.gesprek.Toon<CorrOpmAlg>(hoofd);
}

}  // namespace

// kept: two titles that say nothing; the label tells what is asked.
const CorrVraagSoort kVraagPersRecord{"VraagPersRecord",
                                      "XXX",
                                      "Geef het nummer van het Persoonsrecord",
                                      BestandSoort::Personen,
                                      Vervolgtest::GeenVervolg,
                                      &Volgers::HuidigPersoonNr,
                                      ToonVerwijzingen<kCorrPrsAlg>};
const CorrVraagSoort kVraagPersVervolg{"VraagPersVervolg",
                                       "Corrigeren van een vervolgrecord in het Persoonsbestand",
                                       "Geef het nummer van het vervolgrecord",
                                       BestandSoort::Personen,
                                       Vervolgtest::Vervolg,
                                       &Volgers::HuidigPersoonNr,
                                       ToonVerwijzingen<kCorrPrsVlg>};
const CorrVraagSoort kVraagRelRecord{"VraagRelRecord",
                                     "XXX",
                                     "Geef het nummer van het Relatierecord",
                                     BestandSoort::Relaties,
                                     Vervolgtest::GeenVervolg,
                                     &Volgers::HuidigRelatieNr,
                                     ToonVerwijzingen<kCorrRelAlg>};
const CorrVraagSoort kVraagRelVervolg{"VraagRelVervolg",
                                      "Corrigeren van een vervolgrecord in het Relatiebestand",
                                      "Geef het nummer van het vervolgrecord",
                                      BestandSoort::Relaties,
                                      Vervolgtest::Vervolg,
                                      &Volgers::HuidigRelatieNr,
                                      ToonVerwijzingen<kCorrRelVlg>};
const CorrVraagSoort kVraagOpmRecord{"VraagOpmRecord",
                                     "Corrigeren van een normaal Opmerkingenrecord",
                                     "Geef het nummer van het Opmerkingenrecord",
                                     BestandSoort::Opmerkingen,
                                     Vervolgtest::Geen,
                                     &Volgers::HuidigOpmNr,
                                     ToonOpmerking};

CorrVraag::CorrVraag(const CorrVraagSoort& soort, Hoofdmodule& hoofd)
    : InvoerFormulier(soort.naam, soort.titel, hoofd),
      VraagLabel(*this, "VraagLabel", soort.vraag),
      RecordNr(*this, "RecordNr", "Recordnummer:", soort.bestand, soort.vervolgtest),
      soort_(soort) {
  ZetHulpOnderwerp("corrigeren");
  ZetEersteVeld(RecordNr);
  // An empty number is refused without a word.
  RecordNr.BijVerlaten([this] { return !RecordNr.Tekst().empty(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(kGeen); });
}

void CorrVraag::Sluit(std::int16_t nr) {
  Hoofd().volgers.*soort_.volger = nr;
  Formulier::Sluit();
}

void CorrVraag::OKButtonKlik() {
  if (Controleer(RecordNr)) {
    Sluit(RecordNr.Nr());
  } else {
    ZetFocus(RecordNr);
  }
}

void Corrigeer(Hoofdmodule& hoofd, const CorrVraagSoort& soort) {
  hoofd.gesprek.Toon<CorrVraag>(soort, hoofd);
  if (hoofd.volgers.*soort.volger != kGeen) soort.toonDialoog(hoofd);
}

}  // namespace lb77
