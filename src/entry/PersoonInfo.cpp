#include "entry/PersoonInfo.h"

#include "output/Zinnen.h"

namespace lb77 {

std::string PersoonInfo(const Gegevens& gegevens, std::string_view toonTrouw, std::int16_t nr) {
  ZinOpties opties;
  opties.toonTrouw = toonTrouw;
  return Zinnen(gegevens, opties).PersoonInfoTekst(nr);
}

}  // namespace lb77
