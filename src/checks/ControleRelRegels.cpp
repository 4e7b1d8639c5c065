#include "checks/ControleRelRegels.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

#include "text/Datum.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

// The first tick box is told in the report and decides nothing.
enum Keuze : std::size_t { kVolgorde = 1, kVerschil, kLeeftijd, kKinderen };

constexpr int kVolwassen = 18;
// kept: dialog and head of the report say 10.
constexpr int kGrootsteVerschil = 15;

void MeldTekst(const Controleur::Melding& meld, std::int16_t nr, BevindingSoort soort,
               std::string_view achter) {
  const RecordPlek plek{BestandSoort::Relaties, nr};
  meld({plek, plek, soort, "Relatie " + GetalTekst(nr) + ": " + std::string(achter)});
}

void Meld(const Controleur::Melding& meld, std::int16_t nr, BevindingSoort soort) {
  MeldTekst(meld, nr, soort, SoortNaam(soort));
}

int HuwelijksJaar(const RelatieLB77& relatie) {
  if (relatie.WetHuwJaar() != 0) return relatie.WetHuwJaar();
  return relatie.KHuwJaar() != 0 ? relatie.KHuwJaar() : relatie.OtrJaar();
}

}  // namespace

const ControleRelRegels::PartnerSoorten ControleRelRegels::kMan{
    BevindingSoort::ManOnleesbaar, BevindingSoort::ManNaHuwelijkGeboren, BevindingSoort::ManTeJong};
const ControleRelRegels::PartnerSoorten ControleRelRegels::kVrouw{
    BevindingSoort::VrouwOnleesbaar, BevindingSoort::VrouwNaHuwelijkGeboren,
    BevindingSoort::VrouwTeJong};

void ControleRelRegels::Toets(std::int16_t nr, const Melding& meld) {
  RelatieLB77& relatie = gegevens_.relatie;
  if (!relatie.Lees(nr) || relatie.IsVolgRecord()) return;
  const std::int16_t man = relatie.ManNr();
  const std::int16_t vrouw = relatie.VrouwNr();
  const int huwelijk = HuwelijksJaar(relatie);
  if (keuzen_[kVolgorde]) ToetsDatums(nr, meld);
  const int jaarMan = ToetsPartner(nr, man, kMan, meld);
  const int jaarVrouw = ToetsPartner(nr, vrouw, kVrouw, meld);
  if (keuzen_[kLeeftijd] && huwelijk > 0) {
    for (const auto& [jaar, soorten] : {std::pair(jaarMan, &kMan), {jaarVrouw, &kVrouw}}) {
      if (jaar <= 0 || huwelijk - jaar >= kVolwassen) continue;
      Meld(meld, nr, huwelijk < jaar ? soorten->naHuwelijkGeboren : soorten->teJong);
    }
  }
  if (keuzen_[kVerschil] && jaarMan > 0 && jaarVrouw > 0 &&
      std::abs(jaarMan - jaarVrouw) > kGrootsteVerschil) {
    Meld(meld, nr, BevindingSoort::PartnersVerschillen);
  }
  if (keuzen_[kKinderen]) ToetsKinderen(nr, meld);
}

void ControleRelRegels::ToetsDatums(std::int16_t nr, const Melding& meld) const {
  const RelatieLB77& relatie = gegevens_.relatie;
  const std::string ondertrouw = relatie.OtrDatum10();
  const std::string wettig = relatie.WetHuwDatum10();
  const std::string kerkelijk = relatie.KHuwDatum10();
  if (DatumIsNa(ondertrouw, wettig)) Meld(meld, nr, BevindingSoort::OndertrouwNaWettig);
  if (DatumIsNa(ondertrouw, kerkelijk)) Meld(meld, nr, BevindingSoort::OndertrouwNaKerkelijk);
  // kept: a divorce in the church's fields has no words of its own.
  if (DatumIsNa(wettig, kerkelijk)) Meld(meld, nr, BevindingSoort::WettigNaKerkelijk);
}

int ControleRelRegels::ToetsPartner(std::int16_t nr, std::int16_t partner,
                                    const PartnerSoorten& soorten, const Melding& meld) {
  PersoonLB77& persoon = gegevens_.persoon;
  if (partner <= 0) return 0;
  if (!persoon.Lees(partner)) {
    Meld(meld, nr, soorten.onleesbaar);
    return 0;
  }
  const int jaar = persoon.GebJaar() != 0 ? persoon.GebJaar() : persoon.DoopJaar();
  if (!HeeftEigenRelatie(partner)) {
    const BevindingSoort soort = BevindingSoort::NietBijPersoon;
    MeldTekst(meld, nr, soort, std::string(SoortNaam(soort)) + " " + GetalTekst(partner));
  }
  return jaar;
}

// kept: any relation of the person's list that names him will do, not this one only.
bool ControleRelRegels::HeeftEigenRelatie(std::int16_t persoon) {
  RelatieLB77& relatie = gegevens_.relatie;
  Huwtab relaties;
  static_cast<void>(gegevens_.persoon.VulHuwtab(persoon, relaties));
  return std::ranges::any_of(relaties, [&](std::int16_t nr) {
    return nr > 0 && relatie.Lees(nr) &&
           (relatie.ManNr() == persoon || relatie.VrouwNr() == persoon);
  });
}

void ControleRelRegels::ToetsKinderen(std::int16_t nr, const Melding& meld) {
  Kindtab kinderen;
  static_cast<void>(gegevens_.relatie.VulKindtab(nr, kinderen));
  for (const std::int16_t kind : kinderen) {
    if (kind <= 0) continue;
    const std::string nummer = GetalTekst(kind);
    if (!gegevens_.persoon.Lees(kind)) {
      MeldTekst(meld, nr, BevindingSoort::KindOnleesbaar,
                "Verwijzing naar kind (P" + nummer + ") klopt niet");
    } else if (gegevens_.persoon.RelNrOuders() != nr) {
      MeldTekst(meld, nr, BevindingSoort::KindElders,
                "Verwijzing naar kind " + nummer + " klopt niet");
    }
  }
}

}  // namespace lb77
