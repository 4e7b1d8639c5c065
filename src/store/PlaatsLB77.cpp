#include "store/PlaatsLB77.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "store/Handeling.h"
#include "store/PlaatsVelden.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace veld = plaatsveld;

namespace {

constexpr RaamTabel kTabel{
    .soort = BestandSoort::Plaatsen,
    .velden = veld::kVelden,
    .leeg = veld::kLeeg,
    .sonde = veld::Prov.plaats,
    .schildwacht = "&%",
    .telling = veld::Prov.plaats,
    .bufNr = &Volgers::PlaatsBufNr,
    .geenNr = 0,
    .recordNaam = "Plaatsrecord",
    .schrijfNaam = "Plaatsrecord",
    .leesAdminFout = "Fout bij het lezen van het administratierecord van het Plaatsbestand",
    .schrijfAdminFout = "Fout bij het schrijven van het Administratierecord van het Plaatsbestand",
    .aantalFout = "Aantal plaatsrecords in administratierecord is onjuist",
    .laagste = 1,
    .hoogste = kHoogstePlaats,
    .volFout = "Het maximum van 10000 plaatsen is bereikt",
};

constexpr std::int16_t kVermoedelijk = kHoogstePlaats;
constexpr std::int16_t kTwijfelachtig = 20000;
constexpr std::int16_t kGeenPlaats = -1;

bool IsVolNul(std::string_view bytes) {
  return bytes.find_first_not_of('\0') == std::string_view::npos;
}

}  // namespace

// What is searched, and what to do when it isn't there.
struct PlaatsLB77::Zoekvraag {
  std::string_view naam;
  std::string sleutel;
  bool begin;
  bool bevestigen;
  std::string_view prov;
  std::int16_t toevoegen;
  PlaatsVraag& vraag;
};

std::int16_t PlaatsRecordNr(std::int16_t plaatsNr) {
  if (plaatsNr > kTwijfelachtig) plaatsNr = static_cast<std::int16_t>(plaatsNr - kTwijfelachtig);
  if (plaatsNr > kVermoedelijk) plaatsNr = static_cast<std::int16_t>(plaatsNr - kVermoedelijk);
  return plaatsNr;
}

PlaatsLB77::PlaatsLB77(const Opslag& opslag) : RecordRaam(opslag, kTabel) {}

bool PlaatsLB77::IsGat(Soort) const {
  return IsVolNul({Bytes().data(), Bytes().size()});
}

// In record 1 the probe is the count, and 9510 places are a count like any other.
bool PlaatsLB77::MagSchildwachtZijn(Soort soort) const {
  return soort == Soort::Admin;
}

bool PlaatsLB77::Lees(std::int16_t Nr) {
  if (Nr >= 2) return LeesRecord(Nr);
  Leeg();
  return false;
}

bool PlaatsLB77::Schrijf(std::int16_t Nr) {
  return SchrijfRecord(Nr);
}
bool PlaatsLB77::Nieuw(std::int32_t Nr) {
  return NieuwRecord(Nr);
}
void PlaatsLB77::LeegPltsBuffer() {
  Leeg();
}

bool PlaatsLB77::NieuwAdm() {
  Leeg();
  ZetBytesIn(veld::Naam, "87");
  ZetAantal(0);
  return SchrijfAdmin();
}

std::string PlaatsLB77::NaamVan(std::int16_t recordNr) {
  return Lees(recordNr) ? Tekst(veld::Naam) : std::string();
}

std::string PlaatsLB77::Naam(std::int16_t PlaatsNr) {
  return NaamVan(PlaatsRecordNr(PlaatsNr));
}

std::string PlaatsLB77::Naam2(std::int16_t PlaatsNr) {
  const std::string naam = Naam(PlaatsNr);
  if (naam.empty()) return {};
  if (PlaatsNr > kTwijfelachtig) return naam + "(?)";
  return PlaatsNr > kVermoedelijk ? "verm. " + naam : naam;
}

std::string PlaatsLB77::Prov(std::int16_t PlaatsNr) {
  return Lees(PlaatsRecordNr(PlaatsNr)) ? Tekst(veld::Prov) : std::string();
}

void PlaatsLB77::WerkIndexBij(std::int16_t hoogste) {
  const std::uint64_t stand = DeOpslag().bestanden.Stand(BestandSoort::Plaatsen);
  if (indexStand_ == stand && index_.Hoogste() == hoogste) return;
  index_.Wis();
  bool blijvend = true;
  for (std::int32_t nr = 2; nr <= hoogste; ++nr) {
    const Uitslag uitslag = LeesStil(nr);
    const std::string naam = uitslag.gelukt ? Tekst(veld::Naam) : std::string();
    if (!naam.empty()) {
      index_.Voeg(PlaatsIndex::Sleutel(naam));
    } else {
      index_.VoegStoring(uitslag.gelukt ? PlaatsStoring::Soort::Naamloos
                                        : PlaatsStoring::Soort::Onleesbaar);
    }
    // What the disk refused once it may give the next time.
    if (uitslag.fout) blijvend = false;
  }
  indexStand_ = blijvend ? std::optional(stand) : std::nullopt;
}

void PlaatsLB77::MeldStoring(const PlaatsStoring& storing) {
  const std::string nr = GetalTekst(storing.nr);
  switch (storing.soort) {
    case PlaatsStoring::Soort::Onleesbaar:
      // Read once more for the message of the system, if it is that.
      static_cast<void>(Lees(storing.nr));
      Door().Waarschuw(nr + " Fout bij het lezen van plaatsrecord");
      break;
    case PlaatsStoring::Soort::Naamloos:
      Door().Waarschuw("Plaatsrecord" + nr + " is incompleet.");
      break;
  }
}

std::optional<std::int16_t> PlaatsLB77::Doorzoek(const Zoekvraag& zoek) {
  std::vector<std::int16_t> nummers;
  if (zoek.begin) {
    nummers = index_.Beginnend(zoek.sleutel);
  } else {
    const auto gelijke = index_.Gelijke(zoek.sleutel);
    nummers.assign(gelijke.begin(), gelijke.end());
  }
  auto storing = index_.Storingen().begin();
  const auto meldTot = [&](std::int32_t nr) {
    for (; storing != index_.Storingen().end() && storing->nr < nr; ++storing)
      MeldStoring(*storing);
  };
  for (const std::int16_t nr : nummers) {
    if (nr > kHoogstePlaats) break;
    meldTot(nr);
    if (!Lees(nr)) {
      MeldStoring({nr, PlaatsStoring::Soort::Onleesbaar});
      continue;
    }
    if (!zoek.bevestigen || zoek.vraag.Bevestig(Tekst(veld::Naam), Tekst(veld::Prov))) return nr;
    if (!zoek.vraag.NogVerder()) return kGeenPlaats;
  }
  meldTot(kMaxRecords + 1);
  return std::nullopt;
}

std::int16_t PlaatsLB77::VoegToe(const Zoekvraag& zoek, std::int32_t nr) {
  const auto bij = [&] { return DeOpslag().bestanden.Stand(BestandSoort::Plaatsen); };
  const bool actueel = indexStand_ == bij();
  // One action, also where a field asks for it by itself.
  const Handeling handeling(DeOpslag().bestanden,
                            "Plaats " + GetalTekst(nr) + " toegevoegd: " + std::string(zoek.naam));
  // The file's state tells whether a failure has left anything that the index does not know.
  if (!Nieuw(nr)) return kGeenPlaats;
  std::string prov(zoek.prov);
  if (zoek.toevoegen == 0) prov = zoek.vraag.Provincie(zoek.naam, "  ");
  Zet(veld::Naam.naam, zoek.naam);
  Zet(veld::Prov.naam, prov);
  const auto nieuw = static_cast<std::int16_t>(nr);
  if (!Schrijf(nieuw)) return kGeenPlaats;
  if (actueel && index_.Hoogste() == nr - 1) {
    index_.Voeg(zoek.sleutel);
    indexStand_ = bij();
  }
  return nieuw;
}

std::int16_t PlaatsLB77::Nr(std::string_view Naam, std::int16_t Gedeeltelijk, std::string_view Prov,
                            std::int16_t Toevoegen, PlaatsVraag& vraag) {
  const std::int16_t hoogste = AantalRecords();
  const std::string_view naam = Trim(Naam.substr(0, veld::Naam.breedte));
  std::string sleutel = PlaatsIndex::Sleutel(naam);
  // Also a name that is empty as it would be stored: of hard blanks alone.
  if (sleutel.empty()) return kGeenPlaats;
  WerkIndexBij(hoogste);
  const Zoekvraag zoek{
      naam, std::move(sleutel), Gedeeltelijk == -1, Gedeeltelijk != 0, Prov, Toevoegen, vraag};
  if (const auto gevonden = Doorzoek(zoek)) return *gevonden;
  if (Toevoegen == -1) {
    Door().Waarschuw("Plaatsnaam niet gevonden");
    return kGeenPlaats;
  }
  if (Toevoegen == 0 && !vraag.Toevoegen(naam)) return kGeenPlaats;
  return VoegToe(zoek, hoogste + 1);
}

std::int16_t PlaatsLB77::NrOfNieuw(std::string_view Naam, std::string_view Prov) {
  GeenPlaatsVraag niemand;
  return Nr(Naam, 0, Prov, 1, niemand);
}

}  // namespace lb77
