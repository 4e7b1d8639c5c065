#include "entry/PersoonInfo.h"

#include "app/Hoofdmodule.h"
#include "output/Zinnen.h"

namespace lb77 {

std::string PersoonInfo(Hoofdmodule& hoofd, std::int16_t nr) {
  const ZinBronnen bronnen{hoofd.Persoon,   hoofd.Relatie, hoofd.Plaats,
                           hoofd.Opmerking, hoofd.volgers, hoofd.schrijfwijze};
  ZinOpties opties;
  opties.toonTrouw = hoofd.Ini.ToonTrouw();
  return Zinnen(bronnen, opties).PersoonInfoTekst(nr);
}

}  // namespace lb77
