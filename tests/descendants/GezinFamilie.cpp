#include "descendants/GezinFamilie.h"

namespace lb77 {
namespace {

void MaakOpmerkingen(BouwFamilie& bouw, const GezinFamilie& familie) {
  bouw.OpmerkingBijPersoon(familie.man, 2, {"Roepnaam Jan."}, 8);
  bouw.OpmerkingBijPersoon(familie.man, 4096,
                           {"Woonde op de Markt en had daar een winkel in garen en band,",
                            "die later naar zijn zoon ging."},
                           16);
  bouw.OpmerkingBijPersoon(familie.vrouw, 512, {"Op het oude kerkhof."}, 8);
  bouw.OpmerkingBijPersoon(familie.vrouw, 4096, {"Alleen in de Kwartierstaat."}, 1);
  bouw.OpmerkingBijPersoon(familie.oudste, 8, {"(aangifte een dag later)"}, 8);
  bouw.OpmerkingBijRelatie(familie.relatie, -8, {"(akte 12)"}, 16);
  bouw.OpmerkingBijRelatie(familie.relatie, -256, {"Zij waren neef en nicht."}, 8);
}

}  // namespace

GezinFamilie BouwGezinFamilie(BouwFamilie& bouw) {
  GezinFamilie familie;
  bouw.Plaats("Delft", "ZH");   // 2
  bouw.Plaats("Breda", "NB");   // 3
  bouw.Plaats("Leiden", "ZH");  // 4
  const auto opa =
      bouw.Man("Adriaan", "van Dam",
               {{"GebDatum", "00-00-1770"}, {"OvlDatum", "00-00-1820"}, {"Beroep", "schipper"}});
  const auto oma = bouw.Vrouw("Barbara", "Blom", {{"DoopDatum", "01-05-1775"}});
  const auto schoonvader = bouw.Man("Klaas", "Cool", {{"Beroep", "bakker"}});
  familie.man = bouw.Man("Jan Pieter", "van Dam",
                         {{"GebDatum", "01-02-1800"},
                          {"GebPlaats", "2"},
                          {"DoopDatum", "03-02-1800"},
                          {"DoopPlaats", "2"},
                          {"DoopReligie", "NH"},
                          {"OvlDatum", "00-00-1870"},
                          {"OvlCorr", "C"},
                          {"OvlPlaats", "4"},
                          {"BegrDatum", "05-06-1870"},
                          {"BegrPlaats", "4"},
                          {"Beroep", "winkelier"}});
  familie.vrouw = bouw.Vrouw("Cornelia", "Cool",
                             {{"GebDatum", "00-00-1805"},
                              {"GebCorr", "V"},
                              {"GebPlaats", "3"},
                              {"BegrDatum", "07-08-1881"},
                              {"BegrPlaats", "3"},
                              {"BegrCrem", "1"}});
  bouw.Relatie(opa, oma, {familie.man});
  bouw.Relatie(schoonvader, 0, {familie.vrouw});
  familie.oudste = bouw.Man("Adriaan", "van Dam",
                            {{"GebDatum", "11-11-1826"},
                             {"GebPlaats", "3"},
                             {"DoopDatum", "13-11-1826"},
                             {"OvlDatum", "24-12-1890"},
                             {"OvlPlaats", "2"},
                             {"BegrDatum", "27-12-1890"},
                             {"BegrPlaats", "2"},
                             {"BegrCrem", "1"}});
  const auto dochter = bouw.Vrouw("", "van Dam", {{"GebPlaats", "4"}});
  const auto jongste = bouw.Persoon('?', "Kee", "van Dam", {{"DoopDatum", "01-01-1831"}});
  familie.relatie = bouw.Relatie(familie.man, familie.vrouw, {familie.oudste, dochter, jongste},
                                 {{"OtrDatum", "01-04-1825"},
                                  {"OtrPlaats", "2"},
                                  {"WHuwDatum", "20-04-1825"},
                                  {"WHuwPlaats", "2"},
                                  {"HuwSoort", "BS"},
                                  {"HuwCorr", "N"},
                                  {"KHuwDatum", "21-04-1825"},
                                  {"KHuwPlaats", "3"},
                                  {"Religie", "NH"}});
  familie.tweede = bouw.Relatie(familie.man, 0);
  const auto schoondochter = bouw.Vrouw("Ida", "Ident");
  bouw.Relatie(familie.oudste, schoondochter);
  bouw.Relatie(familie.oudste, 0);
  MaakOpmerkingen(bouw, familie);
  return familie;
}

}  // namespace lb77
