// Storing a remark: its lines, its place in the chain, and its owner.
#include <algorithm>
#include <string>
#include <utility>

#include "store/OpmLB77.h"
#include "store/OpmVelden.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace veld = opmveld;

namespace {

constexpr std::int16_t kEersteOpm = 2;
constexpr std::string_view kLeesFout = "Fout bij het lezen van Opmerking";
constexpr std::string_view kSchrijfFout = "Fout bij het schrijven van Opmerking";

// Empty as it would be stored: a blank line in the chain would hide the lines behind it.
bool IsLeeg(std::string_view regel) {
  return Trim(WindowsNaarDos(Trim(regel)).substr(0, veld::Tekstregel.breedte)).empty();
}

}  // namespace

// The remark that is stored, and what its owner knows of remarks.
struct OpmLB77::Opdracht {
  OpmRegels regels;
  OpmRecnrs recnrs;
  std::int16_t vorige;
  std::int16_t persoon;
  std::int16_t relatie;
  std::int16_t begin;
  std::int16_t prog;
  std::int16_t rubriek;
};

bool OpmLB77::SchrijfOpmerking(OpmRegels Regels, const OpmRecnrs& Recnrs, std::int16_t VorigeRecord,
                               std::int16_t Persoon, std::int16_t Relatie, std::int16_t Begin,
                               std::int16_t Prog, std::int16_t Rubriek) {
  std::stable_partition(Regels.begin(), Regels.end(),
                        [](const std::string& regel) { return !IsLeeg(regel); });
  Opdracht opdracht{std::move(Regels), Recnrs, VorigeRecord, Persoon,
                    Relatie,           Begin,  Prog,         Rubriek};
  for (std::size_t i = 0; i < opdracht.regels.size(); ++i) {
    if (!SchrijfRegel(opdracht, i)) return false;
  }
  const std::int16_t eerste = opdracht.recnrs[0];
  if (Recnrs[0] == 0 && eerste != 0) {
    const std::uint64_t stand = DeOpslag().bestanden.Stand(BestandSoort::Opmerkingen);
    gegroeid_ = {Begin != 0 ? Begin : eerste, eerste, stand};
  }
  return true;
}

std::int16_t OpmLB77::ZoekEinde(std::int16_t begin) {
  const std::uint64_t stand = DeOpslag().bestanden.Stand(BestandSoort::Opmerkingen);
  const bool bekend = begin != 0 && gegroeid_.begin == begin && gegroeid_.stand == stand;
  return bekend ? gegroeid_.einde : RecordnrEindeKetting(begin);
}

bool OpmLB77::SchrijfRegel(Opdracht& opdracht, std::size_t i) {
  const bool leeg = IsLeeg(opdracht.regels[i]);
  const bool bezet = opdracht.recnrs[i] != 0;
  if (leeg) return !bezet || GeefVrij(opdracht, i);
  return bezet ? Herschrijf(opdracht, i) : VoegToe(opdracht, i);
}

bool OpmLB77::LeesOpmerking(std::int16_t nr) {
  Trackers().HuidigOpmNr = nr;
  if (Lees()) return true;
  MeldFout(kLeesFout);
  return false;
}

bool OpmLB77::BewaarOpmerking(std::string_view fout) {
  if (Schrijf()) return true;
  MeldFout(fout);
  return false;
}

bool OpmLB77::GeefVrij(const Opdracht& opdracht, std::size_t i) {
  if (!LeesOpmerking(opdracht.recnrs[i])) return false;
  const std::int16_t volgende = BijZelfde();
  ZetGetal(veld::Rubriek, 0);
  ZetTekst("");
  if (!BewaarOpmerking("Schrijffout bij opmerking")) return false;
  // kept: the admin record is read, and would be lowered, but is not written. It tells of growth
  // only, and the search upward from its BijProg passes over what is freed below it.
  const Uitslag admin = LeesStil(1, Soort::Admin);
  if (!admin.gelukt) {
    MeldFout("Fatale fout bij bijwerken v.h. Adm.record v.h. Opm.bestand", admin.fout);
    return false;
  }
  return i > 0 || MaakLos(opdracht, volgende);
}

bool OpmLB77::MaakLos(const Opdracht& opdracht, std::int16_t volgende) {
  if (opdracht.vorige != 0) {
    if (!LeesOpmerking(opdracht.vorige)) return false;
    ZetGetal(veld::BijZelfde, volgende);
    if (!BewaarOpmerking(kSchrijfFout)) return false;
  }
  std::optional<Eigenaar> eigenaar = LeesEigenaar(opdracht);
  if (!eigenaar) return false;
  if (opdracht.vorige == 0) eigenaar->opmRecord = volgende;
  std::int16_t laatste = 0;
  std::int16_t code = 0;
  const bool heel = LoopKeten(eigenaar->opmRecord, laatste, code);
  // Of a chain that doesn't hold the rubrics stay as they were, so that what can be read of it
  // stays in sight.
  if (heel) eigenaar->opmCode = code;
  return SchrijfEigenaar(opdracht, *eigenaar, "Fout bij het schrijven van Persoon") && heel;
}

bool OpmLB77::Herschrijf(const Opdracht& opdracht, std::size_t i) {
  if (!LeesOpmerking(opdracht.recnrs[i])) return false;
  ZetTekst(opdracht.regels[i]);
  ZetGetal(veld::BijProg, opdracht.prog);
  const bool laatste = i + 1 == opdracht.regels.size() || IsLeeg(opdracht.regels[i + 1]);
  if (laatste) ZetGetal(veld::VolgRegel, 0);
  return BewaarOpmerking(kSchrijfFout);
}

bool OpmLB77::VoegToe(Opdracht& opdracht, std::size_t i) {
  // A chain that doesn't hold must not cost a record, so that its end is found first.
  const std::int16_t einde = i == 0 ? ZoekEinde(opdracht.begin) : std::int16_t{0};
  if (einde < 0) return false;
  const std::int16_t nr = NeemRecord(opdracht, i);
  if (nr == 0) return false;
  opdracht.recnrs[i] = nr;
  if (i > 0) return Koppel(opdracht.recnrs[i - 1], veld::VolgRegel, nr);
  if (einde > 0 && !Koppel(einde, veld::BijZelfde, nr)) return false;
  std::optional<Eigenaar> eigenaar = LeesEigenaar(opdracht);
  if (!eigenaar) return false;
  if (einde == 0) eigenaar->opmRecord = nr;
  eigenaar->opmCode = OpmCodeMet(eigenaar->opmCode, opdracht.rubriek);
  // kept: the spelling; users and their notes know this message so.
  return SchrijfEigenaar(opdracht, *eigenaar, "Fout bij het schrijvan van Persoon");
}

bool OpmLB77::Koppel(std::int16_t nr, const Veld& schakel, std::int16_t volgende) {
  if (!LeesOpmerking(nr)) return false;
  ZetGetal(schakel, volgende);
  return BewaarOpmerking(kSchrijfFout);
}

std::int16_t OpmLB77::NeemRecord(const Opdracht& opdracht, std::size_t i) {
  const std::int16_t nr = Kandidaat();
  if (nr == 0) return 0;
  Trackers().HuidigOpmNr = nr;
  if (!Lees() || Rubriek() != 0) {
    MeldFout(std::string(kLeesFout) + GetalTekst(nr));
    return 0;
  }
  Leeg();
  ZetTekst(opdracht.regels[i]);
  ZetGetal(veld::Rubriek, opdracht.rubriek);
  ZetGetal(veld::BijProg, opdracht.prog);
  ZetGetal(veld::BijRecord, opdracht.persoon != 0 ? opdracht.persoon : opdracht.relatie);
  if (!BewaarOpmerking(kSchrijfFout)) return 0;
  return TelGebruikt(nr) ? nr : std::int16_t{0};
}

std::int16_t OpmLB77::Kandidaat() {
  if (!LeesAdminVast()) return 0;
  // Record 1 is never free, whatever a damaged admin record says.
  const auto vrij = std::max<std::int16_t>(BijProg(), kEersteOpm);
  const std::int16_t aantal = AantalRecords();
  if (vrij <= aantal) {
    // An interrupted write of the admin record leaves it on a record that was taken since.
    const std::int32_t vrijNr = ZoekVrijVanaf(vrij, aantal);
    if (vrijNr <= aantal) return static_cast<std::int16_t>(vrijNr);
  }
  // Never further than the next record: one behind a gap could not be reached again.
  const std::int32_t nr = aantal + 1;
  return Nieuw(nr) ? static_cast<std::int16_t>(nr) : std::int16_t{0};
}

bool OpmLB77::TelGebruikt(std::int16_t nr) {
  const std::int16_t vrij = ZoekVrij(nr);
  if (!LeesAdminVast()) return false;
  ZetGetal(veld::BijRecord, TelOp(BijRecord(), 1).value_or(kMaxRecords));
  ZetGetal(veld::BijProg, vrij);
  const SysteemFout fout = SchrijfStil(1);
  if (fout) MeldFout("Fout bij het schrijven (Admin.record v.h. Opm.bestand)", fout);
  return !fout;
}

std::int16_t OpmLB77::ZoekVrij(std::int16_t vanaf) {
  // A file that is full has no number behind its last record; taking that one again is refused.
  const std::int32_t nr = ZoekVrijVanaf(vanaf + 1, AantalRecords());
  return static_cast<std::int16_t>(std::min(nr, kMaxRecords));
}

std::int32_t OpmLB77::ZoekVrijVanaf(std::int32_t nr, std::int16_t aantal) {
  for (; nr <= aantal; ++nr) {
    const Uitslag uitslag = LeesStil(nr);
    if (uitslag.fout || (uitslag.gelukt && Rubriek() == 0)) break;
  }
  return nr;
}

bool OpmLB77::LeesAdminVast() {
  const Uitslag uitslag = LeesStil(1, Soort::Admin);
  if (!uitslag.gelukt) {
    MeldFout("Fatale leesfout (Admin.record v.h. Opm.bestand)", uitslag.fout);
  }
  return uitslag.gelukt;
}

std::optional<OpmLB77::Eigenaar> OpmLB77::LeesEigenaar(const Opdracht& opdracht) {
  if (opdracht.persoon != 0) {
    if (persoon_.Lees(opdracht.persoon)) return Eigenaar{persoon_.OpmRecord(), persoon_.OpmCode()};
    MeldFout("Leesfout bij Persoon " + GetalTekst(opdracht.persoon));
  } else {
    if (relatie_.Lees(opdracht.relatie)) return Eigenaar{relatie_.OpmRecord(), relatie_.OpmCode()};
    MeldFout("Leesfout bij Relatie " + GetalTekst(opdracht.relatie));
  }
  return std::nullopt;
}

bool OpmLB77::SchrijfEigenaar(const Opdracht& opdracht, const Eigenaar& eigenaar,
                              std::string_view persoonFout) {
  const bool isPersoon = opdracht.persoon != 0;
  RecordRaam& raam = isPersoon ? static_cast<RecordRaam&>(persoon_) : relatie_;
  raam.Zet("OpmRecord", GetalTekst(eigenaar.opmRecord));
  raam.Zet("OpmCode", GetalTekst(eigenaar.opmCode));
  const bool gelukt =
      isPersoon ? persoon_.Schrijf(opdracht.persoon) : relatie_.Schrijf(opdracht.relatie);
  if (!gelukt) MeldFout(isPersoon ? persoonFout : "Fout bij het schrijven van Relatie");
  return gelukt;
}

}  // namespace lb77
