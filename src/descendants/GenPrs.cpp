#include "descendants/GenPrs.h"

#include <utility>

#include "app/Hoofdmodule.h"
#include "descendants/GenBereken.h"
#include "descendants/GenSchBlok.h"
#include "descendants/GenSchParam.h"
#include "descendants/GenTekstParam.h"
#include "descendants/GenTemp.h"

namespace lb77 {
namespace {

template <const GenTekstParamSoort& kSoort>
std::unique_ptr<Formulier> VraagOpties(Hoofdmodule& hoofd, GenRun& run,
                                       const std::filesystem::path&) {
  return std::make_unique<GenTekstParam>(kSoort, hoofd, run.opties);
}

template <const GenTempSoort& kSoort>
std::unique_ptr<Formulier> Schrijf(Hoofdmodule& hoofd, GenRun& run,
                                   const std::filesystem::path& pad) {
  return std::make_unique<GenTemp>(kSoort, hoofd, run, pad);
}

std::unique_ptr<Formulier> VraagSchemaOpties(Hoofdmodule& hoofd, GenRun& run,
                                             const std::filesystem::path&) {
  return std::make_unique<GenSchParam>(hoofd, run.opties);
}

std::unique_ptr<Formulier> PlaatsSchema(Hoofdmodule& hoofd, GenRun& run,
                                        const std::filesystem::path&) {
  return std::make_unique<GenSchBlok>(hoofd, run.tabel, run.opties.GenCentreren, run.rijen);
}

}  // namespace

const GenPrsSoort kGenTxtPrs{"GenTxtPrs",
                             VraagOpties<kGenTxtParam>,
                             kGenTxtUitsluit,
                             kGenHTMLParam,
                             {Schrijf<kGenMaakTemp>, nullptr},
                             "GEN_DATA.TMP",
                             "Genealogie / Parenteel in Tekstvorm"};

const GenPrsSoort kGenIdxPrs{"GenIdxPrs",
                             VraagOpties<kGenIdxParam>,
                             kGenIdxUitsluit,
                             kGenHTMLParam,
                             {Schrijf<kGenMaakIdxTemp>, nullptr},
                             "GEN_INDX.TMP",
                             "Index op Genealogie / Parenteel in Tekstvorm"};

const GenPrsSoort kGenSchPrs{"GenSchPrs",
                             VraagSchemaOpties,
                             kGenSchUitsluit,
                             kGenSchHTMLParam,
                             {PlaatsSchema, Schrijf<kGenSchTemp>},
                             "GEN_DATA.TMP",
                             "Schema Genealogie / Parenteel"};

GenPrs::GenPrs(const GenPrsSoort& soort, Hoofdmodule& hoofd)
    : PersoonPrompt({soort.naam, "Nummer Stamouder", "Geef het Persoonsnummer van de Stamouder"},
                    hoofd),
      soort_(soort) {
  ZetHulpOnderwerp("genealogie");
}

void GenPrs::Keten(std::int16_t persoonNr) {
  Hoofdmodule& hoofd = Hoofd();
  GenRun run;
  run.opties.GenStamouderNr = persoonNr;
  const std::filesystem::path pad = hoofd.Ini.TempDir() / soort_.bestand;

  Stap(std::move(*soort_.opties(hoofd, run, pad)));
  if (run.opties.GenUitsluiten) Stap(GenUitsluit(soort_.uitsluit, hoofd, run.opties));
  if (run.opties.GenInHTML) Stap(HTMLParam(soort_.links, hoofd, run.opties.teksten));
  Verberg();
  Stap(GenBereken(hoofd, run.opties, run.tabel));
  for (const GenStap stap : soort_.werk) {
    if (stap) Stap(std::move(*stap(hoofd, run, pad)));
  }
  ToonVerslag(pad, soort_.verslag, run.opties.GenInHTML);
}

}  // namespace lb77
