#include "ancestors/KwstFamilie.h"

namespace lb77 {

KwstFamilie BouwKwstFamilie(BouwFamilie& bouw) {
  KwstFamilie familie;
  bouw.Plaats("Delft", "ZH");   // 2
  bouw.Plaats("Breda", "NB");   // 3
  bouw.Plaats("Leiden", "ZH");  // 4
  // The grandfather has two wives; a grandchild of each marries the other.
  familie.grootvader = bouw.Man("Adriaan", "van Dam",
                                {{"GebDatum", "01-02-1750"},
                                 {"GebPlaats", "2"},
                                 {"DoopDatum", "03-02-1750"},
                                 {"DoopPlaats", "2"},
                                 {"DoopReligie", "NH"},
                                 {"Beroep", "schipper"},
                                 {"OvlDatum", "00-00-1820"},
                                 {"OvlCorr", "C"}});
  const auto oma1 = bouw.Vrouw("Barbara", "Blom", {{"GebDatum", "00-05-1755"}});
  const auto oma2 = bouw.Vrouw("Cornelia", "Cool", {{"GebPlaats", "4"}});
  const auto coolSr = bouw.Man("Klaas", "Cool", {{"Beroep", "bakker"}});
  bouw.Relatie(coolSr, 0, {oma2});
  familie.vader = bouw.Man("Dirk", "van Dam", {{"GebDatum", "11-11-1780"}, {"GebPlaats", "3"}});
  const auto tante = bouw.Vrouw("Eva", "van Dam", {{"GebDatum", "00-00-1782"}});
  familie.moeder = bouw.Vrouw(
      "Femke", "van Dam", {{"BegrDatum", "05-06-1850"}, {"BegrPlaats", "3"}, {"BegrCrem", "1"}});
  bouw.Relatie(familie.grootvader, oma1, {familie.vader, tante},
               {{"OtrDatum", "01-04-1778"},
                {"OtrPlaats", "2"},
                {"WHuwDatum", "20-04-1778"},
                {"WHuwPlaats", "2"}});
  bouw.Relatie(familie.grootvader, oma2, {familie.moeder}, {{"WHuwDatum", "00-00-1785"}});
  familie.proband =
      bouw.Man("Gerrit", "van Dam",
               {{"GebDatum", "24-12-1810"}, {"GebPlaats", "3"}, {"DoopDatum", "24-12-1810"}});
  const auto zus = bouw.Vrouw("Hanna", "van Dam");
  const auto ouders = bouw.Relatie(familie.vader, familie.moeder, {familie.proband, zus},
                                   {{"HuwSwPs", "1"}, {"WHuwDatum", "01-01-1809"}});
  const auto vrouw = bouw.Vrouw("Ida", "Ident");
  const auto schoonvader = bouw.Man("Jan", "Ident", {{"Beroep", "smid"}});
  const auto schoonmoeder = bouw.Vrouw("Kee", "Keizer");
  bouw.Relatie(schoonvader, schoonmoeder, {vrouw});
  bouw.Relatie(familie.proband, vrouw, {}, {{"KHuwDatum", "07-07-1835"}, {"KHuwPlaats", "4"}});
  bouw.OpmerkingBijPersoon(familie.proband, 4096,
                           {"Woonde op de Markt en had daar een winkel in garen en band,",
                            "die later naar zijn zuster ging."});
  bouw.OpmerkingBijPersoon(familie.vader, 2048, {"Beroep onbekend."});
  bouw.OpmerkingBijPersoon(familie.moeder, 512, {"Op het oude kerkhof."});
  bouw.OpmerkingBijPersoon(familie.vader, 4096, {"Alleen in HTML."}, 1 + 64);
  bouw.OpmerkingBijRelatie(ouders, -256, {"Zij waren neef en nicht."});
  return familie;
}

}  // namespace lb77
