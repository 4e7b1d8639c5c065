#include "store/PersoonLB77.h"

#include "store/Codes.h"
#include "store/PersoonVelden.h"
#include "text/Datum.h"
#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace veld = persoonveld;

namespace {

constexpr RaamTabel kTabel{
    .soort = BestandSoort::Personen,
    .velden = veld::kVelden,
    .leeg = veld::kLeeg,
    .sonde = veld::Geslacht.plaats,
    .schildwacht = "X",
    .telling = veld::GebPlaatsNr.plaats,
    .bufNr = &Volgers::PersBufNr,
    .geenNr = -1,
    .recordNaam = "Persoonsrecord",
    .schrijfNaam = "Persoonsrecord",
    .leesAdminFout = "Fout bij het lezen van het Administratierecord van het Persoonsbestand",
    .schrijfAdminFout =
        "Fout bij het schrijven van het Administratierecord van het Persoonsbestand",
    .aantalFout = "Aantal persoonsrecords in administratierecord is onjuist",
    .laagste = 0,
};

std::int16_t AantalPositief(const Huwtab& tab) {
  std::int16_t aantal = 0;
  for (const std::int16_t nr : tab) {
    if (nr > 0) ++aantal;
  }
  return aantal;
}

// Written by the character: two question marks and a dash in a row are a trigraph.
constexpr char kOnbekend = '?';

std::string JaarKolom(std::int16_t jaar) {
  return jaar == 0 ? "    " : Kolom(jaar, 4, Richting::Rechts);
}

}  // namespace

PersoonLB77::PersoonLB77(const Opslag& opslag) : RecordRaam(opslag, kTabel) {}

bool PersoonLB77::IsGat(Soort soort) const {
  if (Teken(veld::Geslacht) != '\0') return false;
  return soort == Soort::Gewoon || Getal(veld::GebPlaatsNr) == 0;
}

void PersoonLB77::HerstelSonde(Soort) {
  if (Teken(veld::Geslacht) == '\0') ZetBytesIn(veld::Geslacht, " ");
}

bool PersoonLB77::Lees(std::int16_t Nr) {
  return LeesRecord(Nr);
}
bool PersoonLB77::Schrijf(std::int16_t Nr) {
  return SchrijfRecord(Nr);
}
bool PersoonLB77::Nieuw(std::int32_t Nr) {
  return NieuwRecord(Nr);
}
void PersoonLB77::LeegPersBuffer() {
  Leeg();
}
bool PersoonLB77::IsVolgRecord() const {
  return Teken(veld::GebCorr) == correctie::kVervolg;
}

bool PersoonLB77::NieuwAdm() {
  using namespace std::string_view_literals;
  Leeg();
  ZetBytesIn(veld::Achternaam, "Pers.bestand Lijnboom\0"sv);
  ZetBytesIn(veld::Voornaam, "Versie 1.60");
  ZetGetal(veld::GebDagMaand, 87);
  return SchrijfAdmin();
}

std::int16_t PersoonLB77::AantalHuw(std::int16_t Nr) {
  const Huwtab tab{0, relatie1(), relatie2(), relatie3()};
  if (relatie3() >= 0) return AantalPositief(tab);
  std::int16_t aantal = 2;
  if (LeesRecord(-std::int32_t{relatie3()})) {
    aantal = relatie3() > 0 ? 5 : relatie2() > 0 ? 4 : 3;
  }
  // The result stands, also when the record at hand can't be read back: that has its own message.
  static_cast<void>(Lees(Nr));
  return aantal;
}

TabUitslag PersoonLB77::VulHuwtab(std::int16_t Nr, Huwtab& tab) {
  Trackers().HuidigPersoonNr = Nr;
  tab = {};
  if (!Lees(Nr)) return {};
  tab = {0, relatie1(), relatie2(), relatie3()};
  if (relatie3() >= 0) return {AantalPositief(tab), true};
  const std::int32_t vervolg = -std::int32_t{relatie3()};
  const bool gelukt = LeesRecord(vervolg);
  tab[3] = relatie1();
  tab[4] = relatie2();
  tab[5] = relatie3();
  // A number that no record can have stays out of the tracker.
  if (vervolg <= kMaxRecords) Trackers().HuidigPersoonNr = static_cast<std::int16_t>(vervolg);
  if (!gelukt) return {2, false};
  // A link further on leads to relations that no table has room for.
  return {AantalPositief(tab), IsVolgRecord() && relatie3() >= 0};
}

void PersoonLB77::HeleNaam(std::int16_t Nr, std::string& Voor, std::string& Achter,
                           std::string_view Onbekend) {
  Voor.clear();
  Achter.clear();
  if (Nr == 0 || !Lees(Nr)) return;
  Voor = VoorNaamTrue();
  Achter = AchterNaamTrue();
  if (Voor.empty()) Voor = Onbekend;
  if (Achter.empty()) Achter = Onbekend;
}

std::string PersoonLB77::NaamVoluit() const {
  const std::string naam = VoorNaamTrue() + " " + AchterNaamTrue();
  const std::string_view links = TrimLinks(naam);
  return links.empty() ? "<onbekend>" : std::string(links);
}

std::int16_t PersoonLB77::IsMan(std::int16_t Nr) {
  if (Nr == 0 || !Lees(Nr)) return -1;
  const char teken = Teken(veld::Geslacht);
  if (teken == geslacht::kMan) return 1;
  return teken == geslacht::kVrouw ? std::int16_t{0} : std::int16_t{-1};
}

std::string PersoonLB77::Periode(std::int16_t Nr) {
  if (Nr != Trackers().PersBufNr) {
    if (Nr == 0) return "    -    ";
    if (!Lees(Nr)) return std::string(4, kOnbekend) + "-" + std::string(4, kOnbekend);
  }
  const std::int16_t begin = GebJaar() != 0 ? GebJaar() : DoopJaar();
  const std::int16_t eind = OvJaar() != 0 ? OvJaar() : BegrJaar();
  return JaarKolom(begin) + "-" + JaarKolom(eind);
}

std::string PersoonLB77::AchterNaamVVC() const {
  return NaamSorteer(AchterNaamTrue(), DeOpslag().schrijfwijze.voorvoegsels);
}

std::string PersoonLB77::Geslacht() const {
  std::string tekst = Tekst(veld::Geslacht);
  return tekst.empty() ? std::string(1, geslacht::kOnbekend) : tekst;
}

std::int32_t PersoonLB77::GebDatum() const {
  return DatumGetal(GebDagMaand(), GebJaar());
}
std::int32_t PersoonLB77::DoopDatum() const {
  return DatumGetal(DoopDagMaand(), DoopJaar());
}
std::int32_t PersoonLB77::OvlDatum() const {
  return DatumGetal(OvDagMaand(), OvJaar());
}
std::int32_t PersoonLB77::BegrDatum() const {
  return DatumGetal(BegrDagMaand(), BegrJaar());
}

std::string PersoonLB77::GebDatum10() const {
  return Datum10(GebDagMaand(), GebJaar(), DeOpslag().schrijfwijze.DatumScheider);
}
std::string PersoonLB77::OvlDatum10() const {
  return Datum10(OvDagMaand(), OvJaar(), DeOpslag().schrijfwijze.DatumScheider);
}
std::string PersoonLB77::DoopDatum10() const {
  return Datum10(DoopDagMaand(), DoopJaar(), DeOpslag().schrijfwijze.DatumScheider);
}
std::string PersoonLB77::BegrDatum10() const {
  return Datum10(BegrDagMaand(), BegrJaar(), DeOpslag().schrijfwijze.DatumScheider);
}

std::int16_t PersoonLB77::GebDagMaand() const {
  return Getal(veld::GebDagMaand);
}
std::int16_t PersoonLB77::OvDagMaand() const {
  return Getal(veld::OvDagMaand);
}
std::int16_t PersoonLB77::BegrDagMaand() const {
  return Getal(veld::BegrDagMaand);
}
std::int16_t PersoonLB77::DoopDagMaand() const {
  return Getal(veld::DoopDagMaand);
}
std::int16_t PersoonLB77::GebJaar() const {
  return Getal(veld::GebJaar);
}
std::int16_t PersoonLB77::OvJaar() const {
  return Getal(veld::OvJaar);
}
std::int16_t PersoonLB77::DoopJaar() const {
  return Getal(veld::DoopJaar);
}
std::int16_t PersoonLB77::BegrJaar() const {
  return Getal(veld::BegrJaar);
}
bool PersoonLB77::BegrCrem() const {
  return Teken(veld::BegrCrem) == kGecremeerd;
}
std::int16_t PersoonLB77::GebPlaatsNr() const {
  return Getal(veld::GebPlaatsNr);
}
std::int16_t PersoonLB77::DoopPlaatsNr() const {
  return Getal(veld::DoopPlaatsNr);
}
std::int16_t PersoonLB77::OvlPlaatsNr() const {
  return Getal(veld::OvlPlaatsNr);
}
std::int16_t PersoonLB77::BegrPlaatsNr() const {
  return Getal(veld::BegrPlaatsNr);
}
std::int16_t PersoonLB77::RelNrOuders() const {
  return Getal(veld::RelNrOuders);
}
std::int16_t PersoonLB77::OpmRecord() const {
  return Getal(veld::OpmRecord);
}
std::int16_t PersoonLB77::OpmCode() const {
  return Getal(veld::OpmCode);
}
std::int16_t PersoonLB77::relatie1() const {
  return Getal(veld::relatie1);
}
std::int16_t PersoonLB77::relatie2() const {
  return Getal(veld::relatie2);
}
std::int16_t PersoonLB77::relatie3() const {
  return Getal(veld::relatie3);
}
std::string PersoonLB77::VoorNaamTrue() const {
  return Tekst(veld::Voornaam);
}
std::string PersoonLB77::AchterNaamTrue() const {
  return Tekst(veld::Achternaam);
}
std::string PersoonLB77::beroep() const {
  return Tekst(veld::beroep);
}
std::string PersoonLB77::Religie() const {
  return Tekst(veld::Religie);
}
std::string PersoonLB77::GebCorr() const {
  return Tekst(veld::GebCorr);
}
std::string PersoonLB77::OvlCorr() const {
  return Tekst(veld::OvlCorr);
}

}  // namespace lb77
