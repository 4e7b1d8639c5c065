#include "store/OpmLB77.h"

#include <algorithm>

#include "store/Codes.h"
#include "store/OpmVelden.h"
#include "text/Getallen.h"

namespace lb77 {

namespace veld = opmveld;

namespace {

constexpr RaamTabel kTabel{
    .soort = BestandSoort::Opmerkingen,
    .velden = veld::kVelden,
    .leeg = veld::kLeeg,
    .sonde = veld::Staart.plaats,
    .schildwacht = "",
    .telling = veld::Rubriek.plaats,
    .bufNr = &Volgers::OpmBufNr,
    .geenNr = -1,
    .recordNaam = "Opmrecord",
    .schrijfNaam = "Opmerkingenrecord",
    .leesAdminFout = "Fout bij het lezen van Opmrecord 1",
    .schrijfAdminFout =
        "Fout bij het schrijven van het Administratierecord van het Opmerkingenbestand",
    .aantalFout = "",
    .laagste = 0,
};

}  // namespace

OpmLB77::OpmLB77(const Opslag& opslag, PersoonLB77& persoon, RelatieLB77& relatie)
    : RecordRaam(opslag, kTabel), persoon_(persoon), relatie_(relatie) {}

bool OpmLB77::IsGat(Soort soort) const {
  if (Teken(veld::Staart) != '\0') return false;
  return Getal(soort == Soort::Admin ? veld::Rubriek : veld::BijRecord) < 1;
}

void OpmLB77::HerstelSonde(Soort) {
  if (Teken(veld::Staart) == '\0') ZetBytesIn(veld::Staart, "");
}

// A record that was freed keeps its links, and may be taken all the same.
bool OpmLB77::IsInGebruik() const {
  return Getal(veld::Rubriek) != 0;
}

void OpmLB77::ZetTekst(std::string_view Tekst) {
  ZetTekstIn(veld::Tekstregel, Tekst);
}

bool OpmLB77::Nieuw(std::int32_t Nr) {
  if (!SchrijfLeeg(Nr) || !LeesAdmin() || !VerhoogAantal()) return false;
  if (BijProg() >= Nr) ZetGetal(veld::BijProg, static_cast<std::int16_t>(Nr));
  if (!SchrijfAdmin()) return false;
  Trackers().HuidigOpmNr = static_cast<std::int16_t>(Nr);
  const Uitslag uitslag = LeesStil(Nr);
  if (!uitslag.gelukt) {
    MeldFout("Fout bij het lezen van het nieuwe Opmerkingenrecord", uitslag.fout);
  }
  return uitslag.gelukt;
}

bool OpmLB77::NieuwAdm() {
  Leeg();
  ZetGetal(veld::Rubriek, 1);
  ZetGetal(veld::BijRecord, 0);
  ZetGetal(veld::BijProg, 2);
  ZetGetal(veld::VolgRegel, 87);
  ZetBytesIn(veld::Tekstregel, "Opm.Best Lijnboom 1.60");
  return SchrijfAdmin();
}

bool OpmLB77::SchrijfAdm(std::int16_t Aantal, std::int16_t Vrij, std::int16_t Gebruikt) {
  ZetGetal(veld::Rubriek, Aantal);
  ZetGetal(veld::BijProg, Vrij);
  ZetGetal(veld::BijRecord, Gebruikt);
  const SysteemFout fout = SchrijfStil(1);
  if (fout) MeldFout("Bijwerken van het Administratierecord (Opm) mislukt", fout);
  return !fout;
}

bool OpmLB77::Lees() {
  return Lees(Trackers().HuidigOpmNr);
}
bool OpmLB77::Lees(std::int16_t Nr) {
  return LeesRecord(Nr);
}
bool OpmLB77::Schrijf() {
  return Schrijf(Trackers().HuidigOpmNr);
}
bool OpmLB77::Schrijf(std::int16_t Nr) {
  return SchrijfRecord(Nr);
}
void OpmLB77::LeegOpmBuffer() {
  Leeg();
}

// Asked at each remark of a report, so that an absent record 1 has no box here: it is no remarks.
std::optional<std::int16_t> OpmLB77::LeesTelling() {
  const Uitslag uitslag = LeesStil(1, Soort::Admin);
  if (uitslag.fout) MeldFout(kTabel.leesAdminFout, uitslag.fout);
  return uitslag.gelukt ? std::optional(Rubriek()) : std::nullopt;
}

std::int16_t OpmLB77::AantalInAdmin() {
  return LeesTelling().value_or(0);
}

std::int16_t OpmLB77::AantalRecords() {
  const std::optional<std::int16_t> telling = LeesTelling();
  // An admin record that reads is record 1: with nothing in use its NUL would not do elsewhere.
  return telling ? std::max<std::int16_t>(ZoekHoogste(*telling), 1) : std::int16_t{0};
}

std::int16_t OpmLB77::Rubriek() const {
  return Getal(veld::Rubriek);
}
std::int16_t OpmLB77::BijRecord() const {
  return Getal(veld::BijRecord);
}
std::int16_t OpmLB77::BijProg() const {
  return Getal(veld::BijProg);
}
std::int16_t OpmLB77::VolgRegel() const {
  return Getal(veld::VolgRegel);
}
std::int16_t OpmLB77::BijZelfde() const {
  return Getal(veld::BijZelfde);
}
std::string OpmLB77::Tekstregel() const {
  return Tekst(veld::Tekstregel);
}
bool OpmLB77::AlleenHTML() const {
  return (BijProg() & uitvoer::kAlleenHTML) != 0;
}

}  // namespace lb77
