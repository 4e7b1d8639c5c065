#include "checks/CorrOpmAdm.h"

#include <algorithm>
#include <string>

#include "app/NietVeilig.h"
#include "checks/CorrAdm.h"
#include "checks/LaatsteRecord.h"
#include "store/Handeling.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kCijfers = 5;
constexpr std::int16_t kEersteNr = 2;

// What the remarks of a file come to.
struct OpmStand {
  std::int16_t laatste = 1;  // record 1 counts here
  std::int16_t inGebruik = 0;
  std::int32_t eersteVrije = 0;  // the number behind the last when none is free
};

OpmStand TelOpmerkingen(OpmLB77& opmerking, RecordBestand& bestand) {
  OpmStand stand;
  stand.laatste = LaatsteRecord(opmerking, bestand);
  for (std::int32_t nr = kEersteNr; nr <= stand.laatste; ++nr) {
    if (!LeesZonderMelding(opmerking, bestand, static_cast<std::int16_t>(nr))) continue;
    if (opmerking.Rubriek() != 0) {
      ++stand.inGebruik;
    } else if (stand.eersteVrije == 0) {
      stand.eersteVrije = nr;
    }
  }
  if (stand.eersteVrije == 0) stand.eersteVrije = stand.laatste + 1;
  return stand;
}

}  // namespace

OpmTelling::OpmTelling(InvoerFormulier& formulier, const OpmTellingSoort& soort)
    : InRec1(formulier, soort.inRec1, soort.bijschrift),
      Gevonden(formulier, soort.gevonden),
      Nieuw(formulier, soort.nieuw, soort.laagste) {}

OpmTelling::NieuwVak::NieuwVak(InvoerFormulier& formulier, std::string_view naam, int laagste)
    : InvoerVak(formulier, naam, "", kCijfers), laagste_(laagste) {}

bool OpmTelling::NieuwVak::OpVerlaten() {
  if (!InvoerVak::OpVerlaten()) return false;
  const std::string& tekst = Tekst();
  const std::int32_t getal = Getalwaarde(tekst);
  const bool numeriek = std::all_of(tekst.begin(), tekst.end(), IsCijfer);
  if (tekst.empty() || (numeriek && getal >= laagste_ && getal <= hoogste_)) return true;
  Hoofd().gesprek.Waarschuw("Het aantal moet tussen " + GetalTekst(laagste_) + " en " +
                            GetalTekst(hoogste_) + " liggen");
  return false;
}

// A number behind the last of a full file is no number: it is the last one then.
void OpmTelling::Toon(std::int16_t aantal, std::int32_t gevonden, int hoogste) {
  aantal_ = aantal;
  InRec1.ZetTekst(GetalTekst(aantal));
  Gevonden.ZetTekst(GetalTekst(std::min(gevonden, kMaxRecords)));
  Nieuw.ZetTekst("");
  Nieuw.ZetHoogste(std::min(hoogste, kMaxRecords));
}

std::int16_t OpmTelling::Waarde(std::int16_t nu) const {
  return Nieuw.Tekst().empty() ? nu : static_cast<std::int16_t>(Getalwaarde(Nieuw.Tekst()));
}

CorrOpmAdm::CorrOpmAdm(Hoofdmodule& hoofd)
    : InvoerFormulier("CorrOpmAdm", "Corrigeer Adminstratierecord Opmerkingenbestand", hoofd) {
  ZetHulpOnderwerp("corrigeren");
  ZetEersteVeld(Aantal.Nieuw);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void CorrOpmAdm::BijLaden() {
  OpmLB77& opmerking = Hoofd().Opmerking;
  const OpmStand stand =
      TelOpmerkingen(opmerking, Hoofd().bestanden.Bestand(BestandSoort::Opmerkingen));
  const std::int16_t aantal = opmerking.AantalInAdmin();
  Aantal.Toon(aantal, stand.laatste, stand.laatste);
  Gebruikt.Toon(opmerking.BijRecord(), stand.inGebruik, stand.laatste);
  Ongebruikt.Toon(opmerking.BijProg(), stand.eersteVrije, stand.laatste + 1);
}

void CorrOpmAdm::OKButtonKlik() {
  const bool gewijzigd = Aantal.Gewijzigd() || Gebruikt.Gewijzigd() || Ongebruikt.Gewijzigd();
  if (!gewijzigd || Bewaar()) Sluit();
}

// What was not stored stays on the screen.
bool CorrOpmAdm::Bewaar() {
  Gesprek& gesprek = Hoofd().gesprek;
  OpmLB77& opmerking = Hoofd().Opmerking;
  if (!opmerking.LeesAdmin()) {
    gesprek.Fout(kLeesfoutAdmin);
    return false;
  }
  if (!WilAdminOpslaan(gesprek)) return false;
  Handeling handeling(Hoofd().bestanden,
                      "Administratierecord van het Opmerkingenbestand gecorrigeerd");
  // A field left empty keeps what stands there now, which the dialog may have failed to read.
  const std::int16_t ongebruikt = Ongebruikt.Waarde(opmerking.BijProg());
  const std::int16_t gebruikt = Gebruikt.Waarde(opmerking.BijRecord());
  const bool gelukt =
      opmerking.SchrijfAdm(Aantal.Waarde(opmerking.AantalInAdmin()), ongebruikt, gebruikt);
  MeldNietVeilig(gesprek, handeling.Voltooi());
  return gelukt;
}

}  // namespace lb77
