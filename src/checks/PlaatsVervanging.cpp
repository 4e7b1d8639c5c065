#include "checks/PlaatsVervanging.h"

#include <algorithm>
#include <functional>
#include <span>

#include "checks/LaatsteRecord.h"
#include "store/PersoonVelden.h"
#include "store/RelatieVelden.h"

namespace lb77 {

namespace {

constexpr std::int32_t kEersteNr = 2;

constexpr Veld kPersoonPlaatsen[] = {persoonveld::GebPlaatsNr, persoonveld::DoopPlaatsNr,
                                     persoonveld::OvlPlaatsNr, persoonveld::BegrPlaatsNr};
constexpr Veld kRelatiePlaatsen[] = {relatieveld::OtrPlaatsNr, relatieveld::WetHuwPlaatsNr,
                                     relatieveld::KHuwPlaatsNr};

// A file with the fields that name places.
template <class Klasse>
struct Bron {
  Klasse& klasse;
  RecordBestand& bestand;
  std::span<const Veld> velden;

  [[nodiscard]] bool Lees(std::int16_t nr) const {
    return LeesZonderMelding(klasse, bestand, nr) && !klasse.IsVolgRecord();
  }
  [[nodiscard]] bool Noemt(const Veld& veld, std::int16_t plaats) const {
    return GetalOp(klasse.Bytes(), veld.plaats) == plaats;
  }
  // In the record at hand.
  [[nodiscard]] std::int32_t Tel(std::int16_t plaats) const {
    return static_cast<std::int32_t>(std::count_if(
        velden.begin(), velden.end(), [&](const Veld& veld) { return Noemt(veld, plaats); }));
  }
};

Bron<PersoonLB77> Personen(PersoonLB77& persoon, Bestandenset& bestanden) {
  return {persoon, bestanden.Bestand(BestandSoort::Personen), kPersoonPlaatsen};
}

Bron<RelatieLB77> Relaties(RelatieLB77& relatie, Bestandenset& bestanden) {
  return {relatie, bestanden.Bestand(BestandSoort::Relaties), kRelatiePlaatsen};
}

// Without the warning of a wrong count, which the replacement gives.
template <class Klasse>
std::int32_t TelIn(const Bron<Klasse>& bron, std::int16_t oud) {
  std::int32_t aantal = 0;
  const std::int32_t laatste = std::min<std::int32_t>(LaatsteRecord(bron.klasse, bron.bestand),
                                                      bron.klasse.AantalInAdmin() + 1);
  for (std::int32_t nr = kEersteNr; nr <= laatste; ++nr) {
    if (bron.Lees(static_cast<std::int16_t>(nr))) aantal += bron.Tel(oud);
  }
  return aantal;
}

// The record that was just read.
template <class Klasse>
bool VervangInRecord(const Bron<Klasse>& bron, std::int16_t nr, std::int16_t oud,
                     std::int16_t nieuw) {
  for (const Veld& veld : bron.velden) {
    if (bron.Noemt(veld, oud)) bron.klasse.Zet(veld.naam, GetalTekst(nieuw));
  }
  return bron.klasse.Schrijf(nr);
}

template <class Klasse>
struct Gang {
  Bron<Klasse> bron;
  std::int32_t laatste;
  const std::function<void(std::int16_t)>& begint;
};

template <class Klasse>
bool VervangIn(const Gang<Klasse>& gang, std::int16_t oud, std::int16_t nieuw,
               std::int32_t& vervangen, const PlaatsVervanging::Voortgang& voortgang) {
  for (std::int32_t teller = kEersteNr; teller <= gang.laatste; ++teller) {
    const auto nr = static_cast<std::int16_t>(teller);
    gang.begint(nr);
    const std::int32_t hier = gang.bron.Lees(nr) ? gang.bron.Tel(oud) : 0;
    if (hier == 0) continue;
    if (!VervangInRecord(gang.bron, nr, oud, nieuw)) return false;
    vervangen += hier;
    voortgang.vervangen(vervangen);
  }
  return true;
}

}  // namespace

std::int32_t PlaatsVervanging::Tel(std::int16_t oud) {
  return TelIn(Personen(persoon_, bestanden_), oud) + TelIn(Relaties(relatie_, bestanden_), oud);
}

bool PlaatsVervanging::Vervang(std::int16_t oud, std::int16_t nieuw, const Voortgang& voortgang) {
  const Gang<PersoonLB77> personen{Personen(persoon_, bestanden_), persoon_.AantalRecords(),
                                   voortgang.persoon};
  const Gang<RelatieLB77> relaties{Relaties(relatie_, bestanden_), relatie_.AantalRecords(),
                                   voortgang.relatie};
  std::int32_t vervangen = 0;
  return VervangIn(personen, oud, nieuw, vervangen, voortgang) &&
         VervangIn(relaties, oud, nieuw, vervangen, voortgang);
}

}  // namespace lb77
