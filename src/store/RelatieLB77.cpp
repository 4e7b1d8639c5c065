#include "store/RelatieLB77.h"

#include <array>

#include "store/Codes.h"
#include "store/RelatieVelden.h"
#include "text/Datum.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace veld = relatieveld;

namespace {

constexpr RaamTabel kTabel{
    .soort = BestandSoort::Relaties,
    .velden = veld::kVelden,
    .leeg = veld::kLeeg,
    .sonde = veld::HuwCorr.plaats,
    .schildwacht = "X",
    .telling = veld::ManNr.plaats,
    .bufNr = &Volgers::RelBufNr,
    .geenNr = -1,
    .recordNaam = "Relatierecord",
    .schrijfNaam = "Relatierecord",
    .leesAdminFout = "Fout bij het lezen van het Administratierecord van het Relatiebestand",
    .schrijfAdminFout = "Fout bij het schrijven van het Administratierecord van het Relatiebestand",
    .aantalFout = "Aantal relatierecords in administratierecord is onjuist",
    .laagste = 0,
};

constexpr std::int16_t kKinderenInRecord = 15;

}  // namespace

RelatieLB77::RelatieLB77(const Opslag& opslag) : RecordRaam(opslag, kTabel) {}

bool RelatieLB77::IsGat(Soort soort) const {
  if (Teken(veld::HuwCorr) != '\0') return false;
  return soort == Soort::Gewoon || Getal(veld::ManNr) == 0;
}

void RelatieLB77::HerstelSonde(Soort) {
  if (Teken(veld::HuwCorr) == '\0') ZetBytesIn(veld::HuwCorr, " ");
}

bool RelatieLB77::Lees(std::int16_t Nr) {
  return LeesRecord(Nr);
}
bool RelatieLB77::Schrijf(std::int16_t Nr) {
  return SchrijfRecord(Nr);
}
bool RelatieLB77::Nieuw(std::int32_t Nr) {
  return NieuwRecord(Nr);
}
void RelatieLB77::LeegRelBuffer() {
  Leeg();
}
bool RelatieLB77::IsVolgRecord() const {
  return Teken(veld::HuwCorr) == correctie::kVervolg;
}

bool RelatieLB77::NieuwAdm() {
  Leeg();
  ZetGetal(veld::OtrDagMaand, 87);
  return SchrijfAdmin();
}

std::string_view RelatieLB77::WaardeVoor(const Veld& deze, std::string_view waarde) const {
  if (deze.naam != veld::HuwSwPs.naam) return waarde;
  const std::string_view woord = Trim(waarde);
  if (woord == "Sw") return "1";
  return woord == "Ps" ? "2" : waarde;
}

std::int16_t RelatieLB77::KindNr(std::int16_t Index) const {
  if (Index < 1 || Index > kKinderenInRecord) return 0;
  const auto volgnr = static_cast<std::size_t>(Index - 1);
  return GetalOp(Bytes(), veld::Kind1.plaats + veld::Kind1.breedte * volgnr);
}

std::string RelatieLB77::kind(std::int16_t Index) const {
  if (Index < 1 || Index > kKinderenInRecord) return {};
  return GetalTekst(KindNr(Index));
}

TabUitslag RelatieLB77::VulKindtab(std::int16_t Nr, Kindtab& tab) {
  Trackers().HuidigRelatieNr = Nr;
  tab = {};
  if (!Lees(Nr)) return {};
  const auto neemOver = [&](std::size_t vanaf) {
    for (std::int16_t i = 1; i <= kKinderenInRecord; ++i) {
      tab[vanaf + static_cast<std::size_t>(i - 1)] = KindNr(i);
    }
  };
  neemOver(1);
  bool heel = true;
  if (KindNr(kKinderenInRecord) < 0) {
    const std::int32_t vervolg = -std::int32_t{KindNr(kKinderenInRecord)};
    // A number that no record can have stays out of the tracker.
    if (vervolg <= kMaxRecords) Trackers().HuidigRelatieNr = static_cast<std::int16_t>(vervolg);
    const bool gelukt = LeesRecord(vervolg);
    neemOver(kKinderenInRecord);
    if (!gelukt) return {kKinderenInRecord - 1, false};
    // A link further on leads to children that no table has room for.
    heel = IsVolgRecord() && KindNr(kKinderenInRecord) >= 0;
  }
  std::int16_t aantal = 0;
  for (const std::int16_t kindNr : tab) {
    if (kindNr > 0) ++aantal;
  }
  return {aantal, heel};
}

// kept: an empty date has "-" here whatever the separator, unlike that of a person.
std::string RelatieLB77::Entree(const Veld& dagMaand, const Veld& jaar) const {
  if (Getal(dagMaand) == 0 && Getal(jaar) == 0) return "  -  -    ";
  return Datum10(Getal(dagMaand), Getal(jaar), DeOpslag().schrijfwijze.DatumScheider);
}

std::string RelatieLB77::OtrDatum10() const {
  return Entree(veld::OtrDagMaand, veld::OtrJaar);
}
std::string RelatieLB77::WetHuwDatum10() const {
  return Entree(veld::WetHuwDagMaand, veld::WetHuwJaar);
}
std::string RelatieLB77::KHuwDatum10() const {
  return Entree(veld::KHuwDagMaand, veld::KHuwJaar);
}

std::int32_t RelatieLB77::OtrDatum() const {
  return DatumGetal(OtrDagMaand(), OtrJaar());
}
std::int32_t RelatieLB77::WHuwDatum() const {
  return DatumGetal(WetHuwDagMaand(), WetHuwJaar());
}
std::int32_t RelatieLB77::KHuwDatum() const {
  return DatumGetal(KHuwDagMaand(), KHuwJaar());
}

std::int16_t RelatieLB77::OpmCode() const {
  return Getal(veld::OpmCode);
}
std::int16_t RelatieLB77::OpmRecord() const {
  return Getal(veld::OpmRecord);
}
std::string RelatieLB77::Religie() const {
  return std::string(Kaal(veld::Religie));
}
std::string RelatieLB77::HuwSoort() const {
  return std::string(Kaal(veld::HuwSoort));
}
std::int16_t RelatieLB77::KHuwJaar() const {
  return Getal(veld::KHuwJaar);
}
std::int16_t RelatieLB77::WetHuwJaar() const {
  return Getal(veld::WetHuwJaar);
}
std::int16_t RelatieLB77::KHuwDagMaand() const {
  return Getal(veld::KHuwDagMaand);
}
std::int16_t RelatieLB77::WetHuwDagMaand() const {
  return Getal(veld::WetHuwDagMaand);
}
std::int16_t RelatieLB77::OtrJaar() const {
  return Getal(veld::OtrJaar);
}
std::int16_t RelatieLB77::OtrDagMaand() const {
  return Getal(veld::OtrDagMaand);
}
std::string RelatieLB77::HuwCorr() const {
  return Tekst(veld::HuwCorr);
}
std::int16_t RelatieLB77::ManNr() const {
  return Getal(veld::ManNr);
}
std::int16_t RelatieLB77::VrouwNr() const {
  return Getal(veld::VrouwNr);
}
std::int16_t RelatieLB77::OtrPlaatsNr() const {
  return Getal(veld::OtrPlaatsNr);
}
std::int16_t RelatieLB77::WetHuwPlaatsNr() const {
  return Getal(veld::WetHuwPlaatsNr);
}
std::int16_t RelatieLB77::KHuwPlaatsNr() const {
  return Getal(veld::KHuwPlaatsNr);
}
bool RelatieLB77::KHuwSch() const {
  return Teken(veld::KHuwSch) == kGescheiden;
}

std::string RelatieLB77::HuwSwPs() const {
  const char soort = Teken(veld::HuwSwPs);
  return soort == bond::kSamenwonen || soort == bond::kPartnerschap ? std::string(1, soort)
                                                                    : std::string();
}

}  // namespace lb77
