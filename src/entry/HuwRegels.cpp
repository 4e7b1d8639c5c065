#include "entry/HuwRegels.h"

#include <cstddef>
#include <string>

#include "entry/KaartVelden.h"
#include "forms/Gesprek.h"
#include "store/Codes.h"
#include "store/Partner.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"
#include "text/Getallen.h"

namespace lb77 {

std::vector<HuwRegel> LeesHuwRegels(PersoonLB77& persoon, RelatieLB77& relatie, Gesprek& gesprek,
                                    std::int16_t persoonNr) {
  if (!persoon.Lees(persoonNr)) return {};
  const bool isMan = IsCode(persoon.Geslacht(), geslacht::kMan);
  const std::int32_t vervolg = -std::int32_t{persoon.relatie3()};
  Huwtab tab{};
  if (!persoon.VulHuwtab(persoonNr, tab).heel) {
    gesprek.Fout(std::string(kLeesfoutPersoon) + GetalTekst(vervolg));
  }
  std::vector<HuwRegel> regels;
  for (std::size_t i = 1; i < tab.size() && tab[i] > 0; ++i) {
    HuwRegel regel;
    regel.relatie = tab[i];
    if (relatie.Lees(tab[i])) regel.partner = PartnerVan(relatie, persoonNr, isMan);
    persoon.HeleNaam(regel.partner, regel.voornaam, regel.achternaam, "<onbekend>");
    if (regel.partner == 0) regel.achternaam = "<onbekend>";
    regels.push_back(regel);
  }
  return regels;
}

}  // namespace lb77
