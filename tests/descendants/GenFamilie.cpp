#include "descendants/GenFamilie.h"

namespace lb77 {

GenFamilie BouwGenFamilie(BouwFamilie& bouw) {
  GenFamilie familie;
  bouw.Plaats("Delft", "ZH");  // 2
  bouw.Plaats("Breda", "NB");  // 3
  const auto oervader = bouw.Man("Hendrik", "Kok", {{"Beroep", "kok"}});
  const auto oermoeder = bouw.Vrouw("Geertje", "Pot");
  familie.stamouder = bouw.Man("Jan", "Kok",
                               {{"GebDatum", "01-02-1700"},
                                {"GebPlaats", "2"},
                                {"Beroep", "herbergier"},
                                {"OvlDatum", "03-04-1770"}});
  bouw.Relatie(oervader, oermoeder, {familie.stamouder});
  const auto schoonvader = bouw.Man("Willem", "de Boer", {{"Beroep", "boer"}});
  const auto vrouw = bouw.Vrouw("Anna", "de Boer", {{"GebDatum", "00-00-1705"}});
  bouw.Relatie(schoonvader, 0, {vrouw});
  familie.zoon = bouw.Man("Piet", "Kok", {{"GebDatum", "05-06-1730"}, {"GebPlaats", "3"}});
  familie.dochter = bouw.Vrouw("Maria", "Kok", {{"GebDatum", "00-00-1732"}});
  const auto jong =
      bouw.Man("Klaas", "Kok", {{"GebDatum", "01-01-1735"}, {"OvlDatum", "02-02-1736"}});
  const auto onbekend = bouw.Persoon('?', "N.", "Kok");
  const auto huwelijk =
      bouw.Relatie(familie.stamouder, vrouw, {familie.zoon, familie.dochter, jong, onbekend},
                   {{"WHuwDatum", "07-08-1729"}, {"WHuwPlaats", "2"}});

  const auto eerste = bouw.Vrouw("Trijntje", "Eerst");
  const auto tweede = bouw.Vrouw("Lijsje", "Tweed");
  const auto kleinzoon = bouw.Man("Jan", "Kok", {{"GebDatum", "00-00-1755"}});
  bouw.Relatie(familie.zoon, eerste, {kleinzoon}, {{"WHuwDatum", "00-00-1754"}});
  bouw.Relatie(familie.zoon, tweede, {}, {{"HuwSwPs", "1"}, {"WHuwDatum", "00-00-1760"}});

  const auto kleindochter = bouw.Vrouw("Neeltje", "Kok", {{"GebDatum", "00-00-1756"}});
  bouw.Relatie(0, familie.dochter, {kleindochter});
  familie.kind = bouw.Man("Cornelis", "Kok", {{"GebDatum", "09-10-1780"}});
  bouw.Relatie(kleinzoon, kleindochter, {familie.kind},
               {{"KHuwDatum", "00-00-1785"}, {"KHuwSch", "1"}, {"WHuwDatum", "00-00-1779"}});
  const auto achterkleinkind = bouw.Vrouw("Dirkje", "Kok");
  bouw.Relatie(familie.kind, 0, {achterkleinkind});

  bouw.OpmerkingBijPersoon(
      familie.stamouder, 4096,
      {"Hij had een herberg aan de haven van Delft, die", "De Halve Maan heette."});
  bouw.OpmerkingBijPersoon(familie.zoon, 8, {"(volgens zijn doopceel)"});
  bouw.OpmerkingBijPersoon(familie.dochter, 4096, {"Alleen in HTML."}, 4 + 64);
  bouw.OpmerkingBijPersoon(familie.kind, 4096, {"Niet in dit verslag."}, 1);
  bouw.OpmerkingBijRelatie(huwelijk, -256, {"Zij trouwden in stilte."});
  return familie;
}

}  // namespace lb77
