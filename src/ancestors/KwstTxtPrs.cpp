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
  Gesprek& gesprek = hoofd.gesprek;

  gesprek.Toon<KwstTxtParam>(hoofd, opties);
  if (GaatDoor() && opties.KwInHTML) gesprek.Toon<HTMLParam>(kKwHTMLParam, hoofd, opties.teksten);
  Verberg();
  KwstTabel tabel;
  const std::filesystem::path pad = hoofd.Ini.TempDir() / "KWSTDATA.TMP";
  if (GaatDoor()) gesprek.Toon<KwstBereken>(hoofd, opties, tabel);
  if (GaatDoor()) gesprek.Toon<KwstMaakTemp>(hoofd, opties, tabel, pad);
  if (hoofd.volgers.HuidigPersoonNr <= 0) return;
  gesprek.Toon<ToonTekst>(hoofd, pad, "Kwartierstaat in Tekstvorm", opties.KwInHTML);
  hoofd.volgers.HuidigPersoonNr = 0;
}

}  // namespace lb77
