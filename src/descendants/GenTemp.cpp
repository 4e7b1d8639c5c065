#include "descendants/GenTemp.h"

#include "app/Hoofdmodule.h"
#include "descendants/GenIdxSchrijver.h"
#include "descendants/GenSchSchrijver.h"
#include "descendants/GenSchrijver.h"
#include "store/Codes.h"

namespace lb77 {
namespace {

Uitslag SchrijfTekst(Hoofdmodule& hoofd, const GenRun& run, TekstSchrijver& uit,
                     const Verloop& verloop) {
  ZinOpties zin;
  zin.ookOpm = run.opties.GenOokOpm;
  zin.ookNrs = run.opties.GenOokNrs;
  zin.inHTML = run.opties.GenInHTML;
  zin.opmMasker = uitvoer::kGenealogie;
  zin.toonTrouw = hoofd.Ini.ToonTrouw();
  return GenSchrijver(run.tabel, run.opties, hoofd.MaakGegevens(), zin, uit, verloop).Schrijf();
}

Uitslag SchrijfIndex(Hoofdmodule& hoofd, const GenRun& run, TekstSchrijver& uit,
                     const Verloop& verloop) {
  return GenIdxSchrijver(run.tabel, run.opties, hoofd.MaakGegevens(), uit, verloop).Schrijf();
}

Uitslag SchrijfSchema(Hoofdmodule& hoofd, const GenRun& run, TekstSchrijver& uit,
                      const Verloop& verloop) {
  return SchrijfGenSchema(run.tabel, run.rijen, run.opties, hoofd.MaakGegevens(), uit, verloop);
}

}  // namespace

const GenTempSoort kGenMaakTemp{{"GenMaakTemp", "Genealogie / Parenteel Schrijven",
                                 "Schrijven van de genealogie / parenteel.", kHoofdpersonen, true},
                                false,
                                SchrijfTekst};

const GenTempSoort kGenMaakIdxTemp{
    {"GenMaakIdxTemp", "Genealogie / Parenteel Schrijven",
     "Schrijven van de genealogie / parenteel.", kHoofdpersonen, true},
    true,
    SchrijfIndex};

// Counts the lines of a drawing that runs to the right, the persons of one that runs downward.
const GenTempSoort kGenSchTemp{{"GenSchTemp",
                                "Schema Genealogie / Parenteel Schrijven",
                                "Schrijven van het schema.",
                                {"Personen", "PersonenLabel", "Aantal personen:"},
                                true},
                               true,
                               SchrijfSchema};

GenTemp::GenTemp(const GenTempSoort& soort, Hoofdmodule& hoofd, const GenRun& run,
                 const std::filesystem::path& pad)
    : SchrijfForm(soort.vorm, hoofd,
                  {pad, soort.doorlopend || run.opties.GenInHTML, run.opties.GenStamouderNr},
                  [&](TekstSchrijver& uit, const Verloop& verloop) {
                    return soort.schrijf(hoofd, run, uit, verloop);
                  }) {
  ZetHulpOnderwerp("genealogie");
}

}  // namespace lb77
