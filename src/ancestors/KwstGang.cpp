#include "ancestors/KwstGang.h"

#include "output/Blik.h"
#include "output/TekstSchrijver.h"
#include "reporting/HTMLPagina.h"

namespace lb77 {

KwstOuder KwstGang::Ouder(int index) const {
  return {index, tabel_.Persoon(index), tabel_.IsHerhaling(index),
          tabel_.KwNummer(index).Vanaf(opties_.KwVanafNr)};
}

Uitslag KwstGang::Loop(const std::function<Uitslag(const KwstStel&)>& schrijf) const {
  for (int i = 1; i < tabel_.KwstAantal();) {
    if (verloop_.afbreken()) return Einde::Afgebroken;
    verloop_.toon(0, i);
    const KwstPaar paar = tabel_.Paar(i);
    const std::int16_t kind = tabel_.Persoon(tabel_.KwKindIndex(i) - 1);
    i = paar.volgende;
    if (!bronnen_.persoon.Lees(kind)) return Leesfout{BestandSoort::Personen, kind};
    KwstStel stel;
    if (paar.vader > 0) stel.vader = Ouder(paar.vader);
    if (paar.moeder > 0) stel.moeder = Ouder(paar.moeder);
    stel.relatie = bronnen_.persoon.RelNrOuders();
    const Uitslag uitslag = schrijf(stel);
    if (uitslag.einde != Einde::Klaar) return uitslag;
  }
  return Einde::Klaar;
}

std::vector<KwstKind> KwstGang::Kinderen(std::int16_t relNr, std::int16_t nr) const {
  const Kindtab plaatsen = LeesKinderen(bronnen_.relatie, relNr).plaatsen;
  std::vector<KwstKind> uit;
  for (std::size_t plaats = 1; plaats < plaatsen.size(); ++plaats) {
    const std::int16_t kind = plaatsen[plaats];
    if (kind <= 0 || (kind == nr && kind != opties_.KwProbandNr)) continue;
    uit.push_back({static_cast<int>(plaats), kind});
  }
  return uit;
}

Uitslag BeginKwst(const KwstOpties& opties, PersoonLB77& persoon, TekstSchrijver& uit) {
  if (!persoon.Lees(opties.KwProbandNr)) {
    return Leesfout{BestandSoort::Personen, opties.KwProbandNr};
  }
  uit.ZetHTML(opties.KwInHTML);
  uit.ZetMarge(true, 0);
  if (opties.KwInHTML) {
    SchrijfHTMLKop(uit, opties.teksten, "Kwartierstaat", persoon.VoorNaamTrue(),
                   persoon.AchterNaamTrue());
  }
  return Einde::Klaar;
}

}  // namespace lb77
