#include "checks/ControleOpmRegels.h"

#include <cstdlib>
#include <string>
#include <utility>

#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr int kRegelsInOpmerking = 10;

std::size_t Op(std::int16_t nr) {
  return static_cast<std::size_t>(nr);
}

bool IsBijPersoon(std::int16_t rubriek) {
  return rubriek > 0;
}

bool DelenRubriek(std::int16_t code, std::int16_t rubriek) {
  return (std::abs(int{code}) & std::abs(int{rubriek})) != 0;
}

}  // namespace

void ControleOpmRegels::Begin(std::int16_t laatste) {
  for (std::vector<Eigenaar>& eigenaren : eigenaren_) {
    eigenaren.assign(static_cast<std::size_t>(kMaxRecords) + 1, {});
  }
  const OpmSchakels schakels = LeesRegels(laatste);
  goed_.assign(regels_.size(), false);
  for (std::int32_t nr = 2; nr <= laatste; ++nr) {
    VolgOpmerking(static_cast<std::int16_t>(nr), schakels);
  }
}

OpmSchakels ControleOpmRegels::LeesRegels(std::int16_t laatste) {
  const OpmLB77& opmerking = gegevens_.opmerking;
  regels_.assign(static_cast<std::size_t>(laatste) + 1, {});
  std::vector<std::int16_t> volgende(regels_.size(), 0);
  for (std::int32_t getal = 2; getal <= laatste; ++getal) {
    const auto nr = static_cast<std::int16_t>(getal);
    if (!gegevens_.opmerking.Lees(nr)) continue;
    regels_[Op(nr)] = {opmerking.Rubriek(), opmerking.BijRecord(), opmerking.VolgRegel()};
    volgende[Op(nr)] = opmerking.BijZelfde();
  }
  return OpmSchakels(std::move(volgende));
}

// Takes the record for the first of a remark, and marks which of its lines their owner finds by it.
void ControleOpmRegels::VolgOpmerking(std::int16_t eerste, const OpmSchakels& schakels) {
  const std::int16_t rubriek = regels_[Op(eerste)].rubriek;
  if (rubriek == 0) return;
  std::int16_t nr = eerste;
  for (int i = 0; i < kRegelsInOpmerking; ++i) {
    if (nr < 2 || Op(nr) >= regels_.size()) return;
    const Regel& regel = regels_[Op(nr)];
    if (!goed_[Op(nr)] && regel.rubriek == rubriek && IsBijEigenaar(regel, eerste, schakels)) {
      goed_[Op(nr)] = true;
    }
    nr = regel.volgRegel;
  }
}

bool ControleOpmRegels::IsBijEigenaar(const Regel& regel, std::int16_t eerste,
                                      const OpmSchakels& schakels) {
  const Eigenaar& eigenaar = EigenaarVan(regel);
  return DelenRubriek(eigenaar.opmCode, regel.rubriek) &&
         schakels.Bereikt(eigenaar.opmRecord, eerste);
}

const ControleOpmRegels::Eigenaar& ControleOpmRegels::EigenaarVan(const Regel& regel) {
  const bool persoon = IsBijPersoon(regel.rubriek);
  const std::int16_t nr = regel.eigenaar > 0 ? regel.eigenaar : std::int16_t{0};
  Eigenaar& eigenaar = eigenaren_[persoon ? 0 : 1][Op(nr)];
  if (std::exchange(eigenaar.gelezen, true) || nr == 0) return eigenaar;
  const auto lees = [&](auto& record) {
    if (!record.Lees(nr) || record.IsVolgRecord()) return;
    eigenaar.opmRecord = record.OpmRecord();
    eigenaar.opmCode = record.OpmCode();
  };
  if (persoon) {
    lees(gegevens_.persoon);
  } else {
    lees(gegevens_.relatie);
  }
  return eigenaar;
}

void ControleOpmRegels::Toets(std::int16_t nr, const Melding& meld) {
  OpmLB77& opmerking = gegevens_.opmerking;
  if (!opmerking.Lees(nr) || opmerking.Rubriek() == 0) return;
  // Behind the last record of a file that was cut meanwhile nothing was looked up.
  if (Op(nr) < goed_.size() && goed_[Op(nr)]) return;
  const bool persoon = IsBijPersoon(opmerking.Rubriek());
  const std::int16_t eigenaar = opmerking.BijRecord();
  meld({{BestandSoort::Opmerkingen, nr},
        {persoon ? BestandSoort::Personen : BestandSoort::Relaties, eigenaar},
        BevindingSoort::LosseOpmerking,
        "Opmerking " + GetalTekst(nr) + " verwijst niet naar " + (persoon ? "P" : "R") +
            GetalTekst(eigenaar)});
}

}  // namespace lb77
