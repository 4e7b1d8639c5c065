#include "ancestors/KwstMaakTemp.h"

#include "ancestors/KwstSchrijver.h"
#include "app/Hoofdmodule.h"
#include "output/TekstSchrijver.h"
#include "reporting/Tijdelijk.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr int kOpmMasker = 1;  // the bit "Kwartierstaat (tekst)" of a remark

ZinOpties ZinOptiesVan(const KwstOpties& opties, const IniClass& ini) {
  ZinOpties zin;
  zin.ookOpm = opties.KwOokOpm;
  zin.ookNrs = opties.KwOokNrs;
  zin.inHTML = opties.KwInHTML;
  zin.opmMasker = kOpmMasker;
  zin.toonTrouw = ini.ToonTrouw();
  return zin;
}

}  // namespace

KwstMaakTemp::KwstMaakTemp(Hoofdmodule& hoofd, const KwstOpties& opties, const KwstTabel& tabel,
                           std::filesystem::path pad)
    : WerkFormulier("KwstMaakTemp", "Kwartierstaat Schrijven", hoofd),
      opties_(opties),
      tabel_(tabel),
      pad_(std::move(pad)) {
  Koppel(OKButton, BackButton);
}

void KwstMaakTemp::Werk() {
  Hoofdmodule& hoofd = Hoofd();
  TekstSchrijver uit;
  if (!OpenTijdelijk(uit, pad_, hoofd.gesprek)) {
    StopKeten();
    Sluit();
    return;
  }
  uit.ZetRechterMarge(opties_.KwInHTML ? TekstSchrijver::kGeenRechterMarge
                                       : hoofd.instellingen.Tekstbr());
  hoofd.volgers.HuidigPersoonNr = opties_.KwProbandNr;
  const KwstVerloop verloop{[this] { return Afbreken(); },
                            [this](int, int kwartieren) {
                              Kwartieren.ZetTekst(GetalTekst(kwartieren));
                              Ververs();
                            }};
  KwstSchrijver schrijver(tabel_, opties_, hoofd.MaakGegevens(), ZinOptiesVan(opties_, hoofd.Ini),
                          uit, verloop);
  const KwstUitslag uitslag = schrijver.Schrijf();
  const bool heel = SluitTijdelijk(uit, pad_, hoofd.gesprek);
  if (uitslag != KwstUitslag::Klaar || !heel) StopKeten();
  if (uitslag != KwstUitslag::Afgebroken) Sluit();
}

}  // namespace lb77
