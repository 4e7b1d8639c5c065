#include "output/Blik.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "output/Zinsbouw.h"
#include "store/Partner.h"

namespace lb77 {

std::vector<std::int16_t> KinderenBlik::Lijst() const {
  std::vector<std::int16_t> uit;
  std::copy_if(plaatsen.begin() + 1, plaatsen.end(), std::back_inserter(uit),
               [](std::int16_t kind) { return kind > 0; });
  return uit;
}

std::optional<PersoonBlik> LeesPersoonBlik(PersoonLB77& persoon, std::int16_t nr) {
  if (!persoon.Lees(nr)) return std::nullopt;
  return BlikVan(persoon, nr);
}

PersoonBlik BlikVan(const PersoonLB77& persoon, std::int16_t nr) {
  return {nr,
          persoon.VoorNaamTrue(),
          persoon.AchterNaamTrue(),
          persoon.Geslacht(),
          persoon.beroep(),
          persoon.RelNrOuders(),
          persoon.OpmRecord(),
          persoon.OpmCode(),
          LevensloopVan(persoon)};
}

GezinBlik GezinVan(const RelatieLB77& relatie, std::int16_t relNr, std::int16_t nr, bool isMan) {
  GezinBlik uit;
  uit.relNr = relNr;
  uit.gelezen = true;
  uit.man = relatie.ManNr();
  uit.vrouw = relatie.VrouwNr();
  uit.partner = PartnerVan(relatie, nr, isMan);
  uit.opmRecord = relatie.OpmRecord();
  uit.opmCode = relatie.OpmCode();
  uit.verbintenis = VerbintenisVan(relatie);
  return uit;
}

std::optional<GezinnenBlik> LeesGezinnen(PersoonLB77& persoon, RelatieLB77& relatie,
                                         std::int16_t nr) {
  if (!persoon.Lees(nr)) return std::nullopt;
  const bool isMan = IsCode(persoon.Geslacht(), geslacht::kMan);
  Huwtab huwtab{};
  GezinnenBlik uit;
  uit.heel = persoon.VulHuwtab(nr, huwtab).heel;
  for (std::size_t plaats = 1; plaats < huwtab.size(); ++plaats) {
    const std::int16_t relNr = huwtab[plaats];
    if (relNr <= 0) continue;
    GezinBlik gezin;
    gezin.relNr = relNr;
    if (relatie.Lees(relNr)) gezin = GezinVan(relatie, relNr, nr, isMan);
    gezin.volgNr = static_cast<int>(plaats);
    uit.lijst.push_back(std::move(gezin));
  }
  return uit;
}

KinderenBlik LeesKinderen(RelatieLB77& relatie, std::int16_t relNr) {
  KinderenBlik uit;
  uit.heel = relatie.VulKindtab(relNr, uit.plaatsen).heel;
  return uit;
}

}  // namespace lb77
