#include "ancestors/KwstTemp.h"

#include "ancestors/KwstIdxSchrijver.h"
#include "ancestors/KwstSchSchrijver.h"
#include "ancestors/KwstSchrijver.h"
#include "app/Hoofdmodule.h"
#include "store/Codes.h"

namespace lb77 {
namespace {

Uitslag SchrijfTekst(Hoofdmodule& hoofd, const KwstOpties& opties, const KwstTabel& tabel,
                     TekstSchrijver& uit, const Verloop& verloop) {
  ZinOpties zin;
  zin.ookOpm = opties.KwOokOpm;
  zin.ookNrs = opties.KwOokNrs;
  zin.inHTML = opties.KwInHTML;
  zin.opmMasker = uitvoer::kKwartierstaat;
  zin.toonTrouw = hoofd.Ini.ToonTrouw();
  return KwstSchrijver(tabel, opties, hoofd.MaakGegevens(), zin, uit, verloop).Schrijf();
}

Uitslag SchrijfIndex(Hoofdmodule& hoofd, const KwstOpties& opties, const KwstTabel& tabel,
                     TekstSchrijver& uit, const Verloop& verloop) {
  return KwstIdxSchrijver(tabel, opties, hoofd.MaakGegevens(), uit, verloop).Schrijf();
}

// The chart makes a tree of its own.
Uitslag SchrijfSchema(Hoofdmodule& hoofd, const KwstOpties& opties, const KwstTabel&,
                      TekstSchrijver& uit, const Verloop& verloop) {
  return KwstSchSchrijver(opties, hoofd.MaakGegevens(), uit, verloop).Schrijf();
}

}  // namespace

const KwstTempSoort kKwstMaakTemp{
    {"KwstMaakTemp", "Kwartierstaat Schrijven", "Schrijven van de kwartierstaat.", kKwartieren},
    false,
    SchrijfTekst};
const KwstTempSoort kKwstIdxTemp{
    {"KwstIdxTemp", kKwstMaakTemp.vorm.titel, kKwstMaakTemp.vorm.schrijven, kKwartieren},
    true,
    SchrijfIndex};

const KwstTempSoort kKwstSchTemp{{"KwstSchTemp",
                                  "Schema Kwartierstaat Schrijven",
                                  "Schrijven van het schema van de kwartierstaat.",
                                  {"Personen", "PersonenLabel", "Aantal personen:"},
                                  true},
                                 true,
                                 SchrijfSchema};

KwstTemp::KwstTemp(const KwstTempSoort& soort, Hoofdmodule& hoofd, const KwstOpties& opties,
                   const KwstTabel& tabel, const std::filesystem::path& pad)
    : SchrijfForm(soort.vorm, hoofd, {pad, soort.doorlopend || opties.KwInHTML, opties.KwProbandNr},
                  [&](TekstSchrijver& uit, const Verloop& verloop) {
                    return soort.schrijf(hoofd, opties, tabel, uit, verloop);
                  }) {
  ZetHulpOnderwerp("kwartierstaat");
}

}  // namespace lb77
