#include "checks/ControlePltsRegels.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <utility>

#include "store/PlaatsVelden.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

enum Keuze : std::size_t { kDubbel, kOngebruikt };

void Meld(const Controleur::Melding& meld, std::int16_t nr, BevindingSoort soort,
          std::string_view achter) {
  const RecordPlek plek{BestandSoort::Plaatsen, nr};
  meld({plek, plek, soort, "Plaats " + GetalTekst(nr) + std::string(achter)});
}

// "(Delft,ZH)"
std::string Aanduiding(std::string_view naam, std::string_view prov) {
  return std::string("(").append(naam).append(",").append(prov).append(")");
}

// Calls `doe` on each record that can be read; one that continues another counts as well.
template <class Record, class Doe>
void ElkRecord(Record& record, std::int16_t laatste, Doe doe) {
  for (std::int32_t nr = 2; nr <= laatste; ++nr) {
    if (record.Lees(static_cast<std::int16_t>(nr))) doe();
  }
}

}  // namespace

void ControlePltsRegels::Begin(std::int16_t laatste) {
  opNaam_.clear();
  gebruikt_.assign(static_cast<std::size_t>(kMaxRecords) + 1, false);
  if (keuzen_[kDubbel]) LeesNamen(laatste);
  if (keuzen_[kOngebruikt]) LeesGebruik();
}

ControlePltsRegels::Plaats ControlePltsRegels::Lees(std::int16_t nr) {
  if (!gegevens_.plaats.Lees(nr)) return {0, {}, {}};
  return {nr, gegevens_.plaats.Waarde(plaatsveld::Naam), gegevens_.plaats.Waarde(plaatsveld::Prov)};
}

void ControlePltsRegels::LeesNamen(std::int16_t laatste) {
  for (std::int32_t nr = 2; nr <= laatste; ++nr) {
    const Plaats plaats = Lees(static_cast<std::int16_t>(nr));
    if (plaats.nr != 0) opNaam_[plaats.naam].push_back(plaats.nr);
  }
}

// kept: a number with a qualifier in it is not the bare number, and no use of that place.
void ControlePltsRegels::LeesGebruik() {
  const auto gebruik = [this](std::initializer_list<std::int16_t> nummers) {
    for (const std::int16_t nr : nummers) {
      if (nr > 0) gebruikt_[static_cast<std::size_t>(nr)] = true;
    }
  };
  PersoonLB77& persoon = gegevens_.persoon;
  ElkRecord(persoon, personen_.Tot(luid_.persoon, persoon), [&] {
    gebruik({persoon.GebPlaatsNr(), persoon.DoopPlaatsNr(), persoon.OvlPlaatsNr(),
             persoon.BegrPlaatsNr()});
  });
  RelatieLB77& relatie = gegevens_.relatie;
  ElkRecord(relatie, relaties_.Tot(luid_.relatie, relatie), [&] {
    gebruik({relatie.OtrPlaatsNr(), relatie.WetHuwPlaatsNr(), relatie.KHuwPlaatsNr()});
  });
}

void ControlePltsRegels::Toets(std::int16_t nr, const Melding& meld) {
  const Plaats plaats = Lees(nr);
  if (plaats.nr == 0) return;
  if (plaats.naam.empty()) Meld(meld, nr, BevindingSoort::Naamloos, " heeft geen naam");
  if (keuzen_[kDubbel]) ToetsDubbel(plaats, meld);
  if (keuzen_[kOngebruikt] && !gebruikt_[static_cast<std::size_t>(nr)]) {
    Meld(meld, nr, BevindingSoort::Ongebruikt,
         Aanduiding(plaats.naam, plaats.prov) + " wordt niet gebruikt");
  }
}

void ControlePltsRegels::ToetsDubbel(const Plaats& plaats, const Melding& meld) {
  const auto gelijk = opNaam_.find(plaats.naam);
  if (gelijk == opNaam_.end()) return;
  const std::vector<std::int16_t>& nummers = gelijk->second;
  for (auto nr = std::ranges::upper_bound(nummers, plaats.nr); nr != nummers.end(); ++nr) {
    const Plaats ander = Lees(*nr);
    std::string tekst = Aanduiding(plaats.naam, plaats.prov);
    if (ander.prov == plaats.prov) {
      tekst.append(" komt ook voor bij plaatscode ").append(GetalTekst(*nr));
      Meld(meld, plaats.nr, BevindingSoort::Dubbel, tekst);
      return;
    }
    tekst.append(" lijkt op plaatscode ").append(GetalTekst(*nr));
    tekst.append(Aanduiding(ander.naam, ander.prov));
    Meld(meld, plaats.nr, BevindingSoort::LijktOp, tekst);
  }
}

}  // namespace lb77
