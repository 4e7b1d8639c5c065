// The report phrases as one string: what the boxes about a person show.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "output/ZinOpties.h"
#include "store/Gegevens.h"

namespace lb77 {

// The string form of the grammar. It is plain text; of the options only `ookNrs` and `toonTrouw`
// count. kept: an event is told apart from its pair where a remark would follow it, although no
// remark is written here.
class Zinnen {
 public:
  explicit Zinnen(const Gegevens& bronnen, ZinOpties opties = {})
      : bronnen_(bronnen), opties_(std::move(opties)) {}

  // The person with his events. HuidigPersoonNr becomes `nr`, and the buffer holds him.
  // "<< Geen gegevens gevonden >>" when he can't be read.
  std::string PersoonZin(std::int16_t nr);

  // The relation, with a leading ", "; empty when it can't be read. `volgNr` is its number among
  // the person's, from 1, and told unless `nummerIsEen`.
  std::string RelatieZin(std::int16_t relNr, int volgNr, bool nummerIsEen);

  // All relations of a person, each with the partner. Empty when he can't be read.
  std::string PartnersZin(std::int16_t nr, bool isVrouwKant);

  // The person and his relations in one paragraph. HuidigPersoonNr is `nr` after it.
  std::string PersoonInfoTekst(std::int16_t nr);

 private:
  std::string PartnerZin(std::int16_t partner);

  Gegevens bronnen_;
  ZinOpties opties_;
};

}  // namespace lb77
