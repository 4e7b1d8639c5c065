#include "ancestors/KwstBereken.h"

#include "app/Hoofdmodule.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr BerekenSoort kSoort{"KwstBereken", "Opbouwen Kwartierstaat",
                              "Opbouwen van de kwartierstaat.", kKwartieren,
                              "Maximum aantal kwartieren bereikt..."};

std::string BijVol() {
  return "Maximum aantal kwartieren (" + GetalTekst(kMaxKwartieren) + ") bereikt...";
}

}  // namespace

KwstBereken::KwstBereken(Hoofdmodule& hoofd, const KwstOpties& opties, KwstTabel& tabel)
    : BerekenForm(
          kSoort, hoofd,
          [&](const Verloop& verloop) {
            return BouwKwst(tabel, opties, hoofd.Persoon, hoofd.Relatie, hoofd.volgers, verloop);
          },
          BijVol()) {
  ZetHulpOnderwerp("kwartierstaat");
}

}  // namespace lb77
