#include "checks/CorrOpmAlg.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "app/NietVeilig.h"
#include "checks/CorrNamen.h"
#include "checks/LaatsteRecord.h"
#include "store/Handeling.h"
#include "store/OpmVelden.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::int16_t kEersteNr = 2;
constexpr std::string_view kPersoon = "P";
constexpr std::string_view kRelatie = "R";

// Only the letter of a person and of a relation.
char Soortletter(char teken) {
  const char letter = Hoofdletter(teken);
  return letter == kPersoon.front() || letter == kRelatie.front() ? letter : '\0';
}

std::int16_t NrUit(const Invoerveld& vak) {
  return NaarInt16(Getalwaarde(vak.Tekst())).value_or(std::int16_t{0});
}

RecordBestand& OpmBestand(Hoofdmodule& hoofd) {
  return hoofd.bestanden.Bestand(BestandSoort::Opmerkingen);
}

}  // namespace

OpmVerwijzingVak::OpmVerwijzingVak(InvoerFormulier& formulier, const std::string& naam,
                                   std::string_view bijschrift)
    : Nr(*this, formulier, naam, bijschrift),
      Regel(formulier, naam + "Regel"),
      formulier_(formulier) {}

bool OpmVerwijzingVak::NrVak::OpVerlaten() {
  if (!RecordNrVak::OpVerlaten()) return false;
  geheel_.ToonRegel();
  return true;
}

void OpmVerwijzingVak::ToonRegel() {
  OpmLB77& opmerking = formulier_.Hoofd().Opmerking;
  const std::int16_t nr = Nr.Nr();
  if (nr == 0) {
    Regel.ZetTekst("");
  } else if (nr < kEersteNr || nr > opmerking.AantalRecords()) {
    Regel.ZetTekst(">> Fout: recordnummer incorrect <<");
  } else if (!LeesZonderMelding(opmerking, OpmBestand(formulier_.Hoofd()), nr)) {
    Regel.ZetTekst(">> Leesfout bij opm-record " + GetalTekst(nr) + " <<");
  } else {
    Regel.ZetTekst(opmerking.Tekstregel());
  }
}

CorrOpmAlg::CorrOpmAlg(Hoofdmodule& hoofd)
    : InvoerFormulier("CorrOpmAlg", "Corrigeer Verwijzingen Opmerkingenrecord", hoofd) {
  ZetHulpOnderwerp("corrigeren");
  ZetEersteVeld(HoortBijSoort);
  HoortBijSoort.ZetFilter(Soortletter);
  Bind();
  HoortBijSoort.BijVerlaten([this] { return HoortBijSoortVerlaten(); });
  BijRecordTekst.BijVerlaten([this] { return BijRecordTekstVerlaten(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void CorrOpmAlg::Bind() {
  velden_.Bind(opmveld::BijRecord, BijRecordTekst);
  velden_.Bind(
      opmveld::Rubriek,
      [this](const std::string& waarde) {
        rubriek_ = Getalwaarde(waarde);
        soort_ = rubriek_ < 0 ? kRelatie : kPersoon;
        HoortBijSoort.ZetTekst(soort_);
      },
      [this] { return NrTekst(Rubriek()); });
  velden_.Bind(opmveld::VolgRegel, VolgRegel.Nr);
  velden_.Bind(opmveld::BijZelfde, VolgOpm.Nr);
}

void CorrOpmAlg::BijLaden() {
  OpmLB77& opmerking = Hoofd().Opmerking;
  nr_ = Hoofd().volgers.HuidigOpmNr;
  RecordNr.ZetTekst(GetalTekst(nr_));
  if (!Lees()) {
    Sluit();
    return;
  }
  Tekstregel.ZetTekst(opmerking.Tekstregel());
  velden_.Toon(opmerking);
  ToonRubriek();
  ToonEigenaar();
  VolgRegel.ToonRegel();
  VolgOpm.ToonRegel();
}

bool CorrOpmAlg::BijRelatie() const {
  return HoortBijSoort.Tekst() == kRelatie;
}

BestandSoort CorrOpmAlg::Eigenaar() const {
  return BijRelatie() ? BestandSoort::Relaties : BestandSoort::Personen;
}

std::int32_t CorrOpmAlg::Rubriek() const {
  return BijRelatie() ? -std::abs(rubriek_) : std::abs(rubriek_);
}

void CorrOpmAlg::ToonRubriek() {
  RubriekCode.ZetTekst(GetalTekst(Rubriek()));
  const auto rubriek = NaarInt16(Rubriek());
  RubriekNaam.ZetTekst(rubriek ? CorrRubriekNaam(*rubriek) : std::string_view());
}

void CorrOpmAlg::ToonEigenaar() {
  BijRecordNaam.ZetTekst(RecordNaam(Hoofd().MaakGegevens(), Eigenaar(), NrUit(BijRecordTekst)));
}

// The text of a function key has passed no filter.
bool CorrOpmAlg::HoortBijSoortVerlaten() {
  const std::string soort = Hoofdletters(HoortBijSoort.Tekst());
  HoortBijSoort.ZetTekst(soort);
  if (soort != kPersoon && soort != kRelatie) {
    Hoofd().gesprek.Waarschuw("Alleen P (Persoon) of R (Relatie) toegestaan");
    return false;
  }
  ToonRubriek();
  ToonEigenaar();
  return true;
}

bool CorrOpmAlg::BijRecordTekstVerlaten() {
  const std::string& tekst = BijRecordTekst.Tekst();
  if (!tekst.empty() && !RecordNrGeldig(Hoofd().MaakGegevens(), Hoofd().gesprek, tekst, Eigenaar(),
                                        Vervolgtest::GeenVervolg)) {
    return false;
  }
  ToonEigenaar();
  return true;
}

bool CorrOpmAlg::Lees() {
  return LeesOfMeld(Hoofd().gesprek, Hoofd().Opmerking, OpmBestand(Hoofd()), nr_,
                    "Recordnummer bestaat niet");
}

// A number stays that of the other kind until it is looked at again.
void CorrOpmAlg::OKButtonKlik() {
  if (HoortBijSoort.Tekst() != soort_ && !Controleer(BijRecordTekst)) {
    ZetFocus(BijRecordTekst);
    return;
  }
  Handeling handeling(Hoofd().bestanden, "Opmerkingenrecord " + GetalTekst(nr_) + " gecorrigeerd");
  if (Bewaar()) Sluit();
  MeldNietVeilig(Hoofd().gesprek, handeling.Voltooi());
}

// A record that would stay as it is, is not written, nor one whose rubric was refused.
bool CorrOpmAlg::Bewaar() {
  if (!velden_.Gewijzigd()) return true;
  if (!Lees()) return false;
  OpmLB77& opmerking = Hoofd().Opmerking;
  velden_.ZetGewijzigde(opmerking);
  return opmerking.Rubriek() == Rubriek() && opmerking.Schrijf(nr_);
}

}  // namespace lb77
