#include "checks/ControlePrsRegels.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "text/Datum.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

enum Keuze : std::size_t { kOuders, kVolgorde, kMaxLeeftijd, kLeeftijdOuders, kRelaties };

constexpr int kHoogsteLeeftijd = 100;
constexpr int kVolwassen = 18;

void Meld(const Controleur::Melding& meld, std::int16_t nr, BevindingSoort soort,
          std::string_view nummer = {}) {
  const RecordPlek plek{BestandSoort::Personen, nr};
  std::string tekst = "Persoon " + GetalTekst(nr) + ": " + std::string(SoortNaam(soort));
  if (!nummer.empty()) tekst.append(" ").append(nummer);
  meld({plek, plek, soort, std::move(tekst)});
}

// The year in which a life is first told of.
int EersteJaar(const PersoonLB77& persoon) {
  return persoon.GebJaar() != 0 ? persoon.GebJaar() : persoon.DoopJaar();
}

}  // namespace

ControlePrsRegels::Leven ControlePrsRegels::LeesLeven(std::int16_t nr) const {
  const PersoonLB77& persoon = gegevens_.persoon;
  return {nr,
          persoon.RelNrOuders(),
          persoon.GebDatum10(),
          persoon.DoopDatum10(),
          persoon.OvlDatum10(),
          persoon.BegrDatum10(),
          EersteJaar(persoon),
          persoon.BegrJaar()};
}

void ControlePrsRegels::Toets(std::int16_t nr, const Melding& meld) {
  if (!gegevens_.persoon.Lees(nr) || gegevens_.persoon.IsVolgRecord()) return;
  const Leven leven = LeesLeven(nr);
  if (keuzen_[kVolgorde]) ToetsDatums(leven, meld);
  if (keuzen_[kLeeftijdOuders]) ToetsOuderdom(leven, meld);
  if (keuzen_[kOuders]) ToetsBijOuders(leven, meld);
  if (keuzen_[kRelaties]) ToetsRelaties(leven, meld);
}

void ControlePrsRegels::ToetsDatums(const Leven& leven, const Melding& meld) const {
  struct Paar {
    const std::string& eerst;
    const std::string& dan;
    BevindingSoort soort;
  };
  const Paar paren[] = {
      {leven.geboren, leven.gedoopt, BevindingSoort::GeboorteNaDoop},
      {leven.geboren, leven.overleden, BevindingSoort::GeboorteNaOverlijden},
      {leven.geboren, leven.begraven, BevindingSoort::GeboorteNaBegraven},
      {leven.gedoopt, leven.overleden, BevindingSoort::DoopNaOverlijden},
      {leven.gedoopt, leven.begraven, BevindingSoort::DoopNaBegraven},
      {leven.overleden, leven.begraven, BevindingSoort::OverlijdenNaBegraven},
  };
  bool opVolgorde = true;
  for (const Paar& paar : paren) {
    if (!DatumIsNa(paar.eerst, paar.dan)) continue;
    Meld(meld, leven.nr, paar.soort);
    opVolgorde = false;
  }
  // kept: the age is tested only of dates that were tested and lie in order, and only up to the
  // burial; the year of death plays no part.
  if (keuzen_[kMaxLeeftijd] && opVolgorde && leven.eersteJaar > 0 &&
      leven.begraafJaar - leven.eersteJaar > kHoogsteLeeftijd) {
    Meld(meld, leven.nr, BevindingSoort::LeeftijdTeHoog);
  }
}

void ControlePrsRegels::ToetsOuderdom(const Leven& leven, const Melding& meld) {
  if (leven.eersteJaar == 0 || leven.ouders <= 0) return;
  RelatieLB77& relatie = gegevens_.relatie;
  if (!relatie.Lees(leven.ouders)) {
    Meld(meld, leven.nr, BevindingSoort::OudersOnleesbaar);
    return;
  }
  ToetsOuder(leven, relatie.ManNr(), Ouder::Vader, meld);
  ToetsOuder(leven, relatie.VrouwNr(), Ouder::Moeder, meld);
}

void ControlePrsRegels::ToetsOuder(const Leven& leven, std::int16_t ouder, Ouder wie,
                                   const Melding& meld) {
  if (ouder <= 0 || !gegevens_.persoon.Lees(ouder)) return;
  const int jaar = EersteJaar(gegevens_.persoon);
  if (jaar <= 0) return;
  const bool vader = wie == Ouder::Vader;
  const int leeftijd = leven.eersteJaar - jaar;
  if (leeftijd < 0) {
    Meld(meld, leven.nr, vader ? BevindingSoort::OuderDanVader : BevindingSoort::OuderDanMoeder);
  } else if (leeftijd < kVolwassen) {
    Meld(meld, leven.nr, vader ? BevindingSoort::VaderTeJong : BevindingSoort::MoederTeJong);
  }
}

// kept: the list is walked up to its count, so that a child behind a gap is not found.
void ControlePrsRegels::ToetsBijOuders(const Leven& leven, const Melding& meld) {
  if (leven.ouders == 0 || !gegevens_.relatie.Lees(leven.ouders)) return;
  Kindtab kinderen;
  const std::int16_t aantal = gegevens_.relatie.VulKindtab(leven.ouders, kinderen).aantal;
  const auto eerste = kinderen.begin() + 1;
  const auto einde = eerste + std::min<std::ptrdiff_t>(aantal, kinderen.end() - eerste);
  if (std::find(eerste, einde, leven.nr) != einde) return;
  Meld(meld, leven.nr, BevindingSoort::NietBijOuders);
}

void ControlePrsRegels::ToetsRelaties(const Leven& leven, const Melding& meld) {
  RelatieLB77& relatie = gegevens_.relatie;
  Huwtab relaties;
  static_cast<void>(gegevens_.persoon.VulHuwtab(leven.nr, relaties));
  for (const std::int16_t nr : relaties) {
    if (nr <= 0 || !relatie.Lees(nr)) continue;
    if (relatie.ManNr() == leven.nr || relatie.VrouwNr() == leven.nr) continue;
    Meld(meld, leven.nr, BevindingSoort::NietBijEigenRelatie, GetalTekst(nr));
  }
}

}  // namespace lb77
