#include "descendants/GezinSchPrs.h"

#include "app/Hoofdmodule.h"
#include "descendants/GezinMaakTemp.h"
#include "descendants/GezinSchParam.h"

namespace lb77 {

GezinSchPrs::GezinSchPrs(Hoofdmodule& hoofd)
    : PersoonPrompt(
          {"GezinSchPrs", "Nummer Gezinshoofd", "Geef het Persoonsnummer van het Gezinshoofd"},
          hoofd) {
  ZetHulpOnderwerp("gezinsblad");
}

void GezinSchPrs::Keten(std::int16_t persoonNr) {
  Hoofdmodule& hoofd = Hoofd();
  GezinOpties opties;
  opties.GezinHoofdNr = persoonNr;
  opties.FamNaamWeerg = hoofd.Ini.IniWaarde("Genealogie", "FamNaamWeerg") == "1";
  const std::filesystem::path pad = hoofd.Ini.TempDir() / "GEZINTMP.TMP";

  Stap(GezinSchParam(hoofd, opties));
  Verberg();
  Stap(GezinMaakTemp(hoofd, opties, pad));
  ToonVerslag(pad, "Gezinsblad", false);
}

}  // namespace lb77
