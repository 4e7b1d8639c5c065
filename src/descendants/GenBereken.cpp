#include "descendants/GenBereken.h"

#include "app/Hoofdmodule.h"
#include "descendants/GenBouwer.h"

namespace lb77 {
namespace {

constexpr BerekenSoort kSoort{"GenBereken", "Opbouwen Genealogie / Parenteel",
                              "Opbouwen van de genealogie / parenteel.", kHoofdpersonen,
                              "Maximum aantal hoofdpersonen bereikt..."};

}  // namespace

GenBereken::GenBereken(Hoofdmodule& hoofd, const GenOpties& opties, GenTabel& tabel)
    : BerekenForm(kSoort, hoofd,
                  [&](const Verloop& verloop) {
                    return BouwGen(tabel, opties, hoofd.Persoon, hoofd.Relatie, hoofd.volgers,
                                   verloop);
                  },
                  {}) {
  ZetHulpOnderwerp("genealogie");
}

}  // namespace lb77
