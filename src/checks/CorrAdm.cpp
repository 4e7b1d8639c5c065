#include "checks/CorrAdm.h"

#include <algorithm>
#include <string>

#include "app/NietVeilig.h"
#include "checks/LaatsteRecord.h"
#include "store/Handeling.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

template <auto kKlasse>
RecordRaam& RecordVan(Hoofdmodule& hoofd) {
  return hoofd.*kKlasse;
}

template <auto kKlasse, BestandSoort kBestand>
std::int16_t LaatsteVan(Hoofdmodule& hoofd) {
  return LaatsteRecord(hoofd.*kKlasse, hoofd.bestanden.Bestand(kBestand));
}

}  // namespace

// kept: "Adminstratierecord".
const CorrAdmSoort kCorrPrsAdm{"CorrPrsAdm", "Corrigeer Adminstratierecord Persoonsbestand",
                               BestandSoort::Personen, RecordVan<&Hoofdmodule::Persoon>,
                               LaatsteVan<&Hoofdmodule::Persoon, BestandSoort::Personen>};
const CorrAdmSoort kCorrRelAdm{"CorrRelAdm", "Corrigeer Adminstratierecord Relatiebestand",
                               BestandSoort::Relaties, RecordVan<&Hoofdmodule::Relatie>,
                               LaatsteVan<&Hoofdmodule::Relatie, BestandSoort::Relaties>};
const CorrAdmSoort kCorrPltsAdm{"CorrPltsAdm", "Corrigeer Adminstratierecord Plaatsbestand",
                                BestandSoort::Plaatsen, RecordVan<&Hoofdmodule::Plaats>,
                                LaatsteVan<&Hoofdmodule::Plaats, BestandSoort::Plaatsen>};

CorrAdm::CorrAdm(const CorrAdmSoort& soort, Hoofdmodule& hoofd)
    : InvoerFormulier(soort.naam, soort.titel, hoofd), soort_(soort) {
  ZetHulpOnderwerp("corrigeren");
  ZetEersteVeld(nieuw_aantal);
  nieuw_aantal.BijVerlaten([this] { return Nieuw_aantalVerlaten(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

// Record 1 is not counted.
void CorrAdm::BijLaden() {
  inRec1_ = soort_.record(Hoofd()).AantalInAdmin();
  gevonden_ = static_cast<std::int16_t>(soort_.laatste(Hoofd()) - 1);
  aantal_in_rec1.ZetTekst(GetalTekst(inRec1_));
  gevonden_aantal.ZetTekst(GetalTekst(gevonden_));
  nieuw_aantal.ZetTekst("");
}

bool CorrAdm::Nieuw_aantalVerlaten() {
  const std::string& tekst = nieuw_aantal.Tekst();
  std::string_view fout;
  if (tekst.empty()) {
    fout = "Geen nieuw aantal ingevoerd";
  } else if (!std::all_of(tekst.begin(), tekst.end(), IsCijfer)) {
    fout = "Recordnummer is niet numeriek";
  } else if (Getalwaarde(tekst) > gevonden_) {
    fout = "Recordnummer bestaat niet";
  }
  if (!fout.empty()) Hoofd().gesprek.Waarschuw(fout);
  return fout.empty();
}

void CorrAdm::OKButtonKlik() {
  if (!Controleer(nieuw_aantal)) {
    ZetFocus(nieuw_aantal);
    return;
  }
  const auto aantal = static_cast<std::int16_t>(Getalwaarde(nieuw_aantal.Tekst()));
  if (aantal == inRec1_ || Bewaar(aantal)) Sluit();
}

// What was not stored stays on the screen.
bool CorrAdm::Bewaar(std::int16_t aantal) {
  Gesprek& gesprek = Hoofd().gesprek;
  RecordRaam& record = soort_.record(Hoofd());
  if (!record.LeesAdmin()) {
    gesprek.Fout(kLeesfoutAdmin);
    return false;
  }
  if (!WilAdminOpslaan(gesprek)) return false;
  Handeling handeling(Hoofd().bestanden,
                      "Administratierecord van het " + std::string(BestandNaam(soort_.bestand)) +
                          " gecorrigeerd: " + GetalTekst(inRec1_) + " wordt " + GetalTekst(aantal));
  record.ZetAantal(aantal);
  const bool gelukt = record.SchrijfAdmin();
  MeldNietVeilig(gesprek, handeling.Voltooi());
  return gelukt;
}

// kept: the words stand in this order.
bool WilAdminOpslaan(Gesprek& gesprek) {
  return gesprek.Bericht(BerichtSoort::Uitroep, Knoppen::JaNee,
                         "Opslaan is een nu risico.\n\n"
                         "Ga niet door zonder backup van de Bestandenset !!\n\n"
                         "Doorgaan ?") == Antwoord::Ja;
}

}  // namespace lb77
