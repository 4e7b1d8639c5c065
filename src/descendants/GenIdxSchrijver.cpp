#include "descendants/GenIdxSchrijver.h"

#include <vector>

#include "output/Blik.h"
#include "output/TabelRij.h"
#include "output/TekstSchrijver.h"
#include "reporting/HTMLPagina.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr int kAchternaam = 27;
constexpr int kVoornaam = 31;
constexpr int kNummer = 8;
constexpr int kPeriode =
    10;  // the lifetime and the blank behind it, which a cell of a page needs not

}  // namespace

Uitslag GenIdxSchrijver::Schrijf() {
  if (const Uitslag kop = SchrijfKop(); kop != Einde::Klaar) return kop;
  int geschreven = 0;
  int i = 0;
  do {
    if (verloop_.afbreken()) return Einde::Afgebroken;
    verloop_.toon(tabel_.Persoon(i), ++geschreven);
    if (const Uitslag rij = SchrijfHoofdpersoon(i); rij != Einde::Klaar) return rij;
    i = Volgende(i);
  } while (i > 0);
  uit_.TagRegel("</TABLE>");
  SchrijfSlot(uit_, opties_.teksten);
  return Einde::Klaar;
}

Uitslag GenIdxSchrijver::SchrijfKop() {
  PersoonLB77& persoon = bronnen_.persoon;
  const std::int16_t stamouder = tabel_.Persoon(0);
  if (!persoon.Lees(stamouder)) return Leesfout{BestandSoort::Personen, stamouder};
  uit_.ZetHTML(opties_.GenInHTML);
  uit_.ZetMarge(true, 0);
  if (opties_.GenInHTML) {
    SchrijfHTMLKop(uit_, opties_.teksten, "Index Genealogie", persoon.VoorNaamTrue(),
                   persoon.AchterNaamTrue());
  }
  SchrijfTitelInTekst(uit_, opties_.teksten);
  uit_.TagRegel("<TABLE>");
  return Einde::Klaar;
}

int GenIdxSchrijver::Volgende(int i) const {
  if (!opties_.GenPerGeneratie) return tabel_.VolgendeInTak(i);
  return i + 1 < tabel_.GenAantal() ? i + 1 : 0;
}

Uitslag GenIdxSchrijver::SchrijfHoofdpersoon(int i) {
  const std::int16_t nr = tabel_.Persoon(i);
  const std::string label = tabel_.Label(i);
  if (tabel_.IsHerhaling(i)) {
    SchrijfIndexRegel(nr, label + " = " + tabel_.Label(-tabel_.GenPersoon(i)), label);
    return Einde::Klaar;
  }
  SchrijfIndexRegel(nr, label, label);
  return SchrijfPartnersIndex(nr, label);
}

// Each partner under the label of the person.
Uitslag GenIdxSchrijver::SchrijfPartnersIndex(std::int16_t nr, const std::string& label) {
  const auto gezinnen = LeesGezinnen(bronnen_.persoon, bronnen_.relatie, nr);
  if (!gezinnen) return Leesfout{BestandSoort::Personen, nr};
  for (const GezinBlik& gezin : gezinnen->lijst) {
    if (!gezin.gelezen) return Leesfout{BestandSoort::Relaties, gezin.relNr};
    if (gezin.partner != 0) SchrijfIndexRegel(gezin.partner, label, label);
  }
  return Einde::Klaar;
}

// Somebody who can't be read has no row. `doel` is the label that the page of the text has.
void GenIdxSchrijver::SchrijfIndexRegel(std::int16_t persoon, const std::string& label,
                                        const std::string& doel) {
  if (!bronnen_.persoon.Lees(persoon)) return;
  const bool inHTML = opties_.GenInHTML;
  std::vector<TabelCel> cellen{
      {.tekst = bronnen_.persoon.AchterNaamTrue(), .breedte = kAchternaam, .vet = true},
      {.tekst = bronnen_.persoon.VoorNaamTrue(), .breedte = kVoornaam, .vet = true}};
  if (opties_.GenOokNrs) {
    cellen.push_back({.tekst = "[" + GetalTekst(persoon) + "]", .breedte = kNummer});
  }
  cellen.push_back({.tekst = bronnen_.persoon.Periode(persoon), .breedte = inHTML ? 0 : kPeriode});
  cellen.push_back({.tekst = label, .link = std::string(Trim(opties_.GenHTMLFile)) + "#" + doel});
  SchrijfTabelRij(uit_, cellen);
}

}  // namespace lb77
