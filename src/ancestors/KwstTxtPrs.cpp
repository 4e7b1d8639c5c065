#include "ancestors/KwstTxtPrs.h"

#include "ancestors/KwstBereken.h"
#include "ancestors/KwstMaakTemp.h"
#include "ancestors/KwstTxtParam.h"
#include "app/Hoofdmodule.h"
#include "output/ToonTekst.h"
#include "reporting/HTMLParam.h"

namespace lb77 {

KwstTxtPrs::KwstTxtPrs(Hoofdmodule& hoofd)
    : PersoonPrompt({"KwstTxtPrs", "Nummer Proband", "Geef het Persoonsnummer van de Proband"},
                    hoofd) {
  ZetHulpOnderwerp("kwartierstaat");
}

void KwstTxtPrs::Keten(std::int16_t persoonNr) {
  Hoofdmodule& hoofd = Hoofd();
  KwstOpties opties;
  opties.KwProbandNr = persoonNr;
  const auto toon = [&hoofd](Formulier&& formulier) { hoofd.gesprek.ToonModaal(formulier); };

  toon(KwstTxtParam(hoofd, opties));
  if (GaatDoor() && opties.KwInHTML) toon(HTMLParam(kKwHTMLParam, hoofd, opties.teksten));
  Verberg();
  KwstTabel tabel;
  const std::filesystem::path pad = hoofd.Ini.TempDir() / "KWSTDATA.TMP";
  if (GaatDoor()) toon(KwstBereken(hoofd, opties, tabel));
  if (GaatDoor()) toon(KwstMaakTemp(hoofd, opties, tabel, pad));
  if (hoofd.volgers.HuidigPersoonNr <= 0) return;
  toon(ToonTekst(hoofd, pad, "Kwartierstaat in Tekstvorm", opties.KwInHTML));
  hoofd.volgers.HuidigPersoonNr = 0;
}

}  // namespace lb77
