#include "ancestors/KwstPrs.h"

#include <utility>

#include "ancestors/KwstBereken.h"
#include "ancestors/KwstBladen.h"
#include "ancestors/KwstSchParam.h"
#include "ancestors/KwstTekstParam.h"
#include "ancestors/KwstTemp.h"
#include "app/Hoofdmodule.h"

namespace lb77 {
namespace {

template <const KwstTekstParamSoort& kSoort>
std::unique_ptr<Formulier> VraagOpties(Hoofdmodule& hoofd, KwstOpties& opties) {
  return std::make_unique<KwstTekstParam>(kSoort, hoofd, opties);
}

template <const KwstTempSoort& kSoort>
std::unique_ptr<Formulier> Schrijf(Hoofdmodule& hoofd, const KwstOpties& opties,
                                   const KwstTabel& tabel, const std::filesystem::path& pad) {
  return std::make_unique<KwstTemp>(kSoort, hoofd, opties, tabel, pad);
}

std::unique_ptr<Formulier> VraagSchema(Hoofdmodule& hoofd, KwstOpties& opties) {
  return std::make_unique<KwstSchParam>(hoofd, opties);
}

std::unique_ptr<Formulier> ToonBladen(Hoofdmodule& hoofd, const KwstOpties& opties,
                                      const KwstTabel& tabel, const std::filesystem::path&) {
  return std::make_unique<KwstBladen>(hoofd, opties, tabel);
}

}  // namespace

const KwstPrsSoort kKwstTxtPrs{"KwstTxtPrs",   VraagOpties<kKwstTxtParam>,
                               &kKwHTMLParam,  Schrijf<kKwstMaakTemp>,
                               "KWSTDATA.TMP", "Kwartierstaat in Tekstvorm"};
const KwstPrsSoort kKwstIdxPrs{"KwstIdxPrs",     VraagOpties<kKwstIdxParam>,
                               &kKwidxHTMLParam, Schrijf<kKwstIdxTemp>,
                               "KWSTINDX.TMP",   "Index op Kwartierstaat in Tekstvorm"};

const KwstPrsSoort kKwstSchPrs{"KwstSchPrs",          VraagSchema,    &kKwHTMLParam,
                               Schrijf<kKwstSchTemp>, "KWSTDATA.TMP", "Schema Kwartierstaat"};
const KwstPrsSoort kKwstBldPrs{"KwstBldPrs",   nullptr, nullptr, ToonBladen,
                               "KWSTBLAD.TMP", "",      true};

KwstPrs::KwstPrs(const KwstPrsSoort& soort, Hoofdmodule& hoofd)
    : PersoonPrompt({soort.naam, "Nummer Proband", "Geef het Persoonsnummer van de Proband"},
                    hoofd),
      soort_(soort) {
  ZetHulpOnderwerp("kwartierstaat");
}

void KwstPrs::Keten(std::int16_t persoonNr) {
  Hoofdmodule& hoofd = Hoofd();
  KwstOpties opties;
  opties.KwProbandNr = persoonNr;
  opties.KwVolgHerh = soort_.volgHerh;
  KwstTabel tabel;
  const std::filesystem::path pad = hoofd.Ini.TempDir() / soort_.bestand;

  if (soort_.opties) Stap(std::move(*soort_.opties(hoofd, opties)));
  if (opties.KwInHTML) Stap(HTMLParam(*soort_.links, hoofd, opties.teksten));
  Verberg();
  Stap(KwstBereken(hoofd, opties, tabel));
  Stap(std::move(*soort_.werk(hoofd, opties, tabel, pad)));
  if (!soort_.verslag.empty()) ToonVerslag(pad, soort_.verslag, opties.KwInHTML);
}

}  // namespace lb77
