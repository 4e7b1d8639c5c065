#include "store/RecordRaam.h"

#include <algorithm>
#include <utility>

#include "text/Datum.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

std::string MetNr(std::string_view tekst, std::string_view naam, std::int32_t nr) {
  return std::string(tekst) + std::string(naam) + " " + GetalTekst(nr);
}

}  // namespace

RecordRaam::RecordRaam(const Opslag& opslag, const RaamTabel& tabel)
    : opslag_(opslag), tabel_(tabel) {
  std::copy(tabel.leeg.begin(), tabel.leeg.end(), buffer_.begin());
}

void RecordRaam::Leeg() {
  std::copy(tabel_.leeg.begin(), tabel_.leeg.end(), buffer_.begin());
  opslag_.volgers.*tabel_.bufNr = tabel_.geenNr;
}

void RecordRaam::MeldFout(std::string_view tekst, const SysteemFout& fout) const {
  opslag_.gesprek.Fout(fout ? std::string(tekst) + "\n" + fout.tekst : std::string(tekst));
}

// Of a record that is cut short the probe must be there; what lies behind it stays empty.
bool RecordRaam::HeeftSonde(std::size_t gelezen) const {
  return gelezen >= tabel_.sonde + std::max<std::size_t>(tabel_.schildwacht.size(), 1);
}

bool RecordRaam::IsAanwezig(std::size_t gelezen, Soort soort) const {
  if (!HeeftSonde(gelezen)) return false;
  const std::string_view schildwacht = tabel_.schildwacht;
  const std::string_view sonde(buffer_.data() + tabel_.sonde, schildwacht.size());
  // kept: a record that itself holds the sentinel reads as absent, as it does for the package
  // that shares these files.
  if (!schildwacht.empty() && sonde == schildwacht && !MagSchildwachtZijn(soort)) return false;
  return !IsGat(soort);
}

RecordRaam::Uitslag RecordRaam::LeesStil(std::int32_t nr, Soort soort) {
  Leeg();
  opslag_.volgers.PlaatsBufNr = 0;
  if (nr < 1 || nr > kMaxRecords) return {};
  std::copy(tabel_.schildwacht.begin(), tabel_.schildwacht.end(), buffer_.begin() + tabel_.sonde);
  Leesuitslag uitslag = Bestand().Lees(nr, Buffer());
  if (uitslag.fout || !IsAanwezig(uitslag.gelezen, soort)) {
    Leeg();
    return {false, std::move(uitslag.fout)};
  }
  HerstelSonde(soort);
  opslag_.volgers.*tabel_.bufNr = static_cast<std::int16_t>(nr);
  return {true, {}};
}

bool RecordRaam::LeesRecord(std::int32_t nr) {
  const Uitslag uitslag = LeesStil(nr);
  if (uitslag.fout) MeldFout(MetNr("Fout bij het lezen van ", tabel_.recordNaam, nr), uitslag.fout);
  return uitslag.gelukt;
}

bool RecordRaam::LeesAdmin() {
  const Uitslag uitslag = LeesStil(1, Soort::Admin);
  if (!uitslag.gelukt) MeldFout(tabel_.leesAdminFout, uitslag.fout);
  return uitslag.gelukt;
}

SysteemFout RecordRaam::SchrijfStil(std::int32_t nr) {
  opslag_.volgers.PlaatsBufNr = 0;
  SysteemFout fout =
      nr < 1 || nr > kMaxRecords ? FoutRecordNummer() : Bestand().Schrijf(nr, Bytes());
  opslag_.volgers.*tabel_.bufNr = fout ? tabel_.geenNr : static_cast<std::int16_t>(nr);
  return fout;
}

bool RecordRaam::SchrijfRecord(std::int32_t nr) {
  const SysteemFout fout = SchrijfStil(nr);
  if (fout) MeldFout(MetNr("Fout bij het schrijven van ", tabel_.schrijfNaam, nr), fout);
  return !fout;
}

bool RecordRaam::SchrijfAdmin() {
  const SysteemFout fout = SchrijfStil(1);
  if (fout) MeldFout(tabel_.schrijfAdminFout, fout);
  return !fout;
}

bool RecordRaam::IsInGebruik() const {
  for (std::size_t i = 0; i < tabel_.leeg.size(); ++i) {
    if (buffer_[i] != tabel_.leeg[i] && buffer_[i] != '\0') return true;
  }
  return false;
}

bool RecordRaam::MagNieuw(std::int32_t nr) {
  if (nr > tabel_.hoogste) {
    MeldFout(tabel_.volFout);
    return false;
  }
  if (nr < 2) {
    MeldFout(MetNr("Fout bij het schrijven van ", tabel_.schrijfNaam, nr), FoutRecordNummer());
    return false;
  }
  Leeg();
  opslag_.volgers.PlaatsBufNr = 0;
  const Leesuitslag uitslag = Bestand().Lees(nr, Buffer());
  if (uitslag.fout) {
    MeldFout(MetNr("Fout bij het lezen van ", tabel_.recordNaam, nr), uitslag.fout);
    return false;
  }
  if (HeeftSonde(uitslag.gelezen) && IsInGebruik()) {
    MeldFout(MetNr("", tabel_.recordNaam, nr) +
             " bestaat al: het aantal in het administratierecord is te laag");
    return false;
  }
  // A record that could not be counted would lie behind the last one for ever.
  return LeesAdmin() && VerhoogAantal();
}

bool RecordRaam::SchrijfLeeg(std::int32_t nr) {
  const bool mag = MagNieuw(nr);
  Leeg();
  return mag && SchrijfRecord(nr);
}

bool RecordRaam::VerhoogAantal() {
  const auto aantal = TelOp(GetalOp(buffer_, tabel_.telling), 1);
  if (aantal) {
    ZetAantal(*aantal);
  } else {
    MeldFout(kMaximumBereikt);
    Leeg();
  }
  return aantal.has_value();
}

bool RecordRaam::NieuwRecord(std::int32_t nr) {
  if (!SchrijfLeeg(nr) || !LeesAdmin() || !VerhoogAantal()) return false;
  if (const SysteemFout fout = SchrijfStil(1)) {
    MeldFout("Fout bij het schrijven van het Administratierecord", fout);
    return false;
  }
  return LeesRecord(nr);
}

std::int16_t RecordRaam::AantalInAdmin() {
  return LeesAdmin() ? GetalOp(buffer_, tabel_.telling) : std::int16_t{0};
}

std::int32_t RecordRaam::RecordsInBestand() const {
  const std::uint64_t lengte = Bestand().Lengte();
  if (lengte == 0) return kMaxRecords;
  const std::uint64_t begonnen = (lengte - 1) / tabel_.leeg.size() + 1;
  return static_cast<std::int32_t>(std::min<std::uint64_t>(begonnen, kMaxRecords));
}

bool RecordRaam::Probeer(std::int32_t nr, bool& gemeld) {
  const Uitslag uitslag = LeesStil(nr);
  if (uitslag.fout && !std::exchange(gemeld, true)) {
    MeldFout(MetNr("Fout bij het lezen van ", tabel_.recordNaam, nr), uitslag.fout);
  }
  return uitslag.gelukt;
}

std::int16_t RecordRaam::ZoekHoogste(std::int32_t vanaf) {
  // One box for a disk that fails, not one for each of its records.
  bool gemeld = false;
  const std::int32_t begin = std::min(vanaf, kMaxRecords);
  std::int32_t nr = begin;
  while (nr > tabel_.laagste && !Probeer(nr, gemeld)) {
    // A count that is far too high is not worth a read for each number behind the file's end.
    nr = nr == begin ? std::min(nr - 1, RecordsInBestand()) : nr - 1;
  }
  return static_cast<std::int16_t>(std::max<std::int32_t>(nr, tabel_.laagste));
}

std::int16_t RecordRaam::AantalRecords() {
  const bool admin = LeesAdmin();
  const std::int32_t volgensAdmin = (admin ? GetalOp(buffer_, tabel_.telling) : 0) + 1;
  // An admin record that reads is record 1, also where it would not do as an ordinary record.
  const std::int16_t gevonden = std::max<std::int16_t>(ZoekHoogste(volgensAdmin), admin ? 1 : 0);
  if (gevonden != volgensAdmin) {
    opslag_.gesprek.Waarschuw(std::string(tabel_.aantalFout) +
                              "\nGevonden:" + GetalTekst(gevonden) +
                              "\nVolgens administratierecord:" + GetalTekst(volgensAdmin));
  }
  return gevonden;
}

std::int16_t RecordRaam::MaxRecordNr() {
  std::int32_t nr = 2;
  while (nr <= kMaxRecords && LeesRecord(nr)) ++nr;
  return static_cast<std::int16_t>(nr - 1);
}

void RecordRaam::ZetAantal(std::int16_t aantal) {
  ZetGetalOp(Buffer(), tabel_.telling, aantal);
}

std::string_view RecordRaam::Kaal(const Veld& veld) const {
  return Trim(BytesVan(Bytes(), veld));
}

std::string RecordRaam::Tekst(const Veld& veld) const {
  return DosNaarWindows(Kaal(veld));
}

void RecordRaam::ZetTekstIn(const Veld& veld, std::string_view windows) {
  ZetBytesIn(veld, WindowsNaarDos(Trim(windows)));
}

const Veld* RecordRaam::VindVeld(std::string_view naam) const {
  const auto gevonden =
      std::find_if(tabel_.velden.begin(), tabel_.velden.end(),
                   [&](const Veld& kandidaat) { return !naam.empty() && kandidaat.naam == naam; });
  if (gevonden != tabel_.velden.end()) return &*gevonden;
  opslag_.gesprek.Waarschuw("Opslaan van " + std::string(naam) + " is nog niet geprogrammeerd");
  return nullptr;
}

void RecordRaam::Zet(std::string_view veld, std::string_view waarde) {
  const Veld* gevonden = VindVeld(veld);
  // A refusal has its message and changes nothing.
  if (gevonden != nullptr) static_cast<void>(Verwerk(*gevonden, waarde));
}

bool RecordRaam::Wijzig(std::int16_t nr, std::span<const VeldWaarde> velden) {
  if (nr < 2) {
    Leeg();
    return false;
  }
  if (!LeesRecord(nr)) return false;
  for (const VeldWaarde& paar : velden) {
    const Veld* veld = paar.veld != nullptr ? paar.veld : VindVeld(paar.naam);
    if (veld == nullptr || !Verwerk(*veld, paar.waarde)) {
      Leeg();
      return false;
    }
  }
  if (SchrijfRecord(nr)) return true;
  Leeg();
  return false;
}

std::string RecordRaam::Waarde(const Veld& veld) const {
  switch (veld.soort) {
    case VeldSoort::Tekst:
      return Tekst(veld);
    case VeldSoort::Getal:
      return NrTekst(Getal(veld));
    case VeldSoort::Datum:
      return Datum10(Getal(veld), GetalOp(buffer_, veld.plaats + veld.breedte),
                     opslag_.schrijfwijze.DatumScheider);
    case VeldSoort::Keuze: {
      const std::size_t keus = veld.keuzen.find(Teken(veld));
      return GetalTekst(
          static_cast<std::int64_t>(keus == std::string_view::npos ? veld.anders : keus));
    }
    case VeldSoort::Vrij:
      break;
  }
  return {};
}

bool RecordRaam::ZetGetalTekst(const Veld& veld, std::string_view waarde) {
  const auto getal = NaarInt16(Getalwaarde(Trim(waarde)));
  if (getal) {
    ZetGetal(veld, *getal);
  } else {
    MeldFout(kMaximumBereikt);
  }
  return getal.has_value();
}

bool RecordRaam::Verwerk(const Veld& veld, std::string_view tekst) {
  const std::string_view waarde = WaardeVoor(veld, tekst);
  switch (veld.soort) {
    case VeldSoort::Tekst:
      ZetTekstIn(veld, waarde);
      break;
    case VeldSoort::Getal:
      return ZetGetalTekst(veld, waarde);
    case VeldSoort::Datum: {
      const DatumDelen datum = OntleedDatum10(waarde);
      ZetGetal(veld, static_cast<std::int16_t>(datum.dag * 100 + datum.maand));
      ZetGetalOp(Buffer(), veld.plaats + veld.breedte, static_cast<std::int16_t>(datum.jaar));
      break;
    }
    case VeldSoort::Keuze: {
      const auto keus = static_cast<std::uint32_t>(Getalwaarde(Trim(waarde)));
      buffer_[veld.plaats] = veld.keuzen[std::min<std::size_t>(keus, veld.keuzen.size() - 1)];
      break;
    }
    case VeldSoort::Vrij:
      break;
  }
  return true;
}

}  // namespace lb77
