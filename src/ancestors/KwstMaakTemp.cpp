#include "ancestors/KwstMaakTemp.h"

#include "ancestors/KwstSchrijver.h"
#include "app/Hoofdmodule.h"
#include "store/Codes.h"

namespace lb77 {
namespace {

constexpr SchrijfSoort kSoort{"KwstMaakTemp", "Kwartierstaat Schrijven",
                              "Schrijven van de kwartierstaat.", kKwartieren};

ZinOpties ZinOptiesVan(const KwstOpties& opties, const IniClass& ini) {
  ZinOpties zin;
  zin.ookOpm = opties.KwOokOpm;
  zin.ookNrs = opties.KwOokNrs;
  zin.inHTML = opties.KwInHTML;
  zin.opmMasker = uitvoer::kKwartierstaat;
  zin.toonTrouw = ini.ToonTrouw();
  return zin;
}

VerslagBestand BestandVan(const KwstOpties& opties, const Instellingen& instellingen,
                          const std::filesystem::path& pad) {
  return {pad, opties.KwInHTML ? TekstSchrijver::kGeenRechterMarge : instellingen.Tekstbr()};
}

}  // namespace

KwstMaakTemp::KwstMaakTemp(Hoofdmodule& hoofd, const KwstOpties& opties, const KwstTabel& tabel,
                           const std::filesystem::path& pad)
    : SchrijfForm(kSoort, hoofd, BestandVan(opties, hoofd.instellingen, pad),
                  [&](TekstSchrijver& uit, const Verloop& verloop) {
                    hoofd.volgers.HuidigPersoonNr = opties.KwProbandNr;
                    return KwstSchrijver(tabel, opties, hoofd.MaakGegevens(),
                                         ZinOptiesVan(opties, hoofd.Ini), uit, verloop)
                        .Schrijf();
                  }) {}

}  // namespace lb77
