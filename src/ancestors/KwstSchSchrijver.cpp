#include "ancestors/KwstSchSchrijver.h"

#include <algorithm>

#include "output/TekstSchrijver.h"
#include "reporting/HTMLPagina.h"
#include "text/Getallen.h"
#include "text/HTML.h"

namespace lb77 {
namespace {

constexpr std::size_t kJaarBreedte = 4;

std::string Jaar(std::int16_t jaar, std::int16_t anders) {
  const std::int16_t welk = jaar != 0 ? jaar : anders;
  return welk != 0 ? GetalTekst(welk) : std::string(kJaarBreedte, ' ');
}

std::string Jaren(const PersoonLB77& persoon) {
  return Jaar(persoon.GebJaar(), persoon.DoopJaar()) + "-" +
         Jaar(persoon.OvJaar(), persoon.BegrJaar());
}

}  // namespace

KwstSchSchrijver::KwstSchSchrijver(const KwstOpties& opties, const Gegevens& bronnen,
                                   TekstSchrijver& uit, const Verloop& verloop)
    : opties_(opties),
      bronnen_(bronnen),
      uit_(uit),
      verloop_(verloop),
      schema_(std::clamp(opties.KwMaxGen, kMinSchemaGen, kMaxSchemaGen)),
      langste_(SchemaNummer(opties.KwBeginNr, schema_.Aantal()).Lengte()) {
  uit_.ZetHTML(opties.KwInHTML);
}

Uitslag KwstSchSchrijver::Schrijf() {
  PersoonLB77& persoon = bronnen_.persoon;
  schema_.Bouw(opties_.KwProbandNr, persoon, bronnen_.relatie);
  const std::int16_t laatste = persoon.AantalRecords();
  if (!persoon.Lees(opties_.KwProbandNr)) {
    return Leesfout{BestandSoort::Personen, opties_.KwProbandNr};
  }
  SchrijfSchemaKop(uit_, opties_.teksten, "Kwartierstaat", persoon.VoorNaamTrue(),
                   persoon.AchterNaamTrue());
  for (int rij = 1; rij <= schema_.Aantal(); ++rij) {
    if (verloop_.afbreken()) return Einde::Afgebroken;
    SchrijfRegel(rij, laatste);
  }
  SchrijfSchemaSlot(uit_, opties_.teksten);
  return Einde::Klaar;
}

// Somebody who can't be read leaves his place with line and number.
void KwstSchSchrijver::SchrijfRegel(int rij, std::int16_t laatste) {
  const int k = schema_.SchemaRij(rij);
  const std::int16_t nr = schema_.SchemaPersoon(k);
  verloop_.toon(nr, k);
  uit_.Vast(schema_.Lijnen(k, opties_.KwBreedte));
  SchrijfNummer(k);
  if (nr > 0 && nr <= laatste && bronnen_.persoon.Lees(nr)) {
    SchrijfPersoon(nr);
  } else {
    uit_.EindeRegel();
  }
}

// The proband has no lines before him: he is moved up by the column in which they begin.
void KwstSchSchrijver::SchrijfNummer(int k) {
  const std::string nummer = SchemaNummer(opties_.KwBeginNr, k).Tekst() + ".";
  if (!opties_.KwUitlijnen) {
    uit_.Tekst(nummer);
    return;
  }
  const int naar = (schema_.Generaties() - KwstSchema::Generatie(k)) * opties_.KwBreedte + 1;
  const std::size_t blanco = static_cast<std::size_t>(k == 1 ? naar + 1 : naar);
  uit_.Vast(std::string(blanco + langste_ + 1 - nummer.size(), ' ') + nummer);
}

void KwstSchSchrijver::SchrijfPersoon(std::int16_t nr) {
  const PersoonLB77& persoon = bronnen_.persoon;
  uit_.Tekst(Gecodeerd(persoon.VoorNaamTrue() + " " + persoon.AchterNaamTrue()));
  if (opties_.KwOokNrs) uit_.Tekst("[" + GetalTekst(nr) + "]");
  if (opties_.KwOokJaren) {
    uit_.TekstUit(Jaren(persoon), true, false);  // in one call, so that its blanks stay
  } else {
    uit_.EindeRegel();
  }
}

std::string KwstSchSchrijver::Gecodeerd(const std::string& tekst) const {
  return opties_.KwInHTML ? TekstNaarHTML(tekst) : tekst;
}

}  // namespace lb77
