#include "ancestors/KwstTxtPrs.h"

#include "ancestors/KwstBereken.h"
#include "ancestors/KwstMaakTemp.h"
#include "ancestors/KwstTxtParam.h"
#include "app/Hoofdmodule.h"
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
  KwstTabel tabel;
  const std::filesystem::path pad = hoofd.Ini.TempDir() / "KWSTDATA.TMP";

  Stap(KwstTxtParam(hoofd, opties));
  if (opties.KwInHTML) Stap(HTMLParam(kKwHTMLParam, hoofd, opties.teksten));
  Verberg();
  Stap(KwstBereken(hoofd, opties, tabel));
  Stap(KwstMaakTemp(hoofd, opties, tabel, pad));
  ToonVerslag(pad, "Kwartierstaat in Tekstvorm", opties.KwInHTML);
}

}  // namespace lb77
