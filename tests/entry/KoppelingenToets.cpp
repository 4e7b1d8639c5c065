#include "entry/KoppelingenToets.h"

#include <numeric>

#include "text/Getallen.h"

namespace lb77 {

namespace {

std::string Nummers(const std::vector<std::int16_t>& nummers) {
  std::size_t lengte = nummers.size();
  while (lengte > 0 && nummers[lengte - 1] == 0) --lengte;
  std::string uit = ":";
  for (std::size_t i = 0; i < lengte; ++i) uit += " " + GetalTekst(nummers[i]);
  return uit;
}

}  // namespace

void KoppelingenToets::Personen(int aantal) {
  for (int i = 0; i < aantal; ++i) set_.bouw.Man("P", "Persoon");
}

std::int16_t KoppelingenToets::RelatieMet(int kinderen, std::int16_t eerste) {
  const std::int16_t relatie = set_.bouw.Relatie(0, 0);
  Kindtab tab{};
  std::iota(tab.begin() + 1, tab.begin() + 1 + kinderen, eerste);
  EXPECT_TRUE(Werk().SchrijfKindtab(relatie, tab));
  return relatie;
}

void KoppelingenToets::GeefRelaties(std::int16_t persoon, int aantal) {
  Huwtab tab{};
  for (int i = 1; i <= aantal; ++i) tab.at(static_cast<std::size_t>(i)) = set_.bouw.Relatie(0, 0);
  EXPECT_TRUE(Werk().SchrijfHuwtab(persoon, tab));
}

KoppelingenToets::Regels KoppelingenToets::Relaties() {
  Regels uit;
  RelatieLB77& relatie = set_.Relatie;
  for (std::int16_t nr = 2; relatie.Lees(nr); ++nr) {
    std::vector<std::int16_t> kinderen;
    for (std::int16_t i = 1; i <= 15; ++i) kinderen.push_back(relatie.KindNr(i));
    std::string regel = GetalTekst(nr);
    if (relatie.IsVolgRecord()) regel += " Z";
    if (relatie.ManNr() != 0) regel += " M" + GetalTekst(relatie.ManNr());
    if (relatie.VrouwNr() != 0) regel += " V" + GetalTekst(relatie.VrouwNr());
    uit.push_back(regel + Nummers(kinderen));
  }
  return uit;
}

KoppelingenToets::Regels KoppelingenToets::Huwelijken() {
  Regels uit;
  PersoonLB77& persoon = set_.Persoon;
  for (std::int16_t nr = 2; persoon.Lees(nr); ++nr) {
    const std::string nummers =
        Nummers({persoon.relatie1(), persoon.relatie2(), persoon.relatie3()});
    if (nummers.size() == 1 && !persoon.IsVolgRecord()) continue;
    uit.push_back(GetalTekst(nr) + (persoon.IsVolgRecord() ? " Z" : "") + nummers);
  }
  return uit;
}

}  // namespace lb77
