#include "ancestors/KwstStamboom.h"

#include <cstddef>

#include "text/Getallen.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

std::vector<std::int16_t> MaakMensen(BouwFamilie& bouw) {
  return {
      0,
      bouw.Man("Gerrit Johannes", "van Dam", {{"GebDatum", "24-12-1910"}, {"GebPlaats", "3"}}),
      bouw.Man("Dirk", "van Dam",
               {{"GebDatum", "11-11-1880"},
                {"GebPlaats", "2"},
                {"OvlDatum", "00-00-1950"},
                {"OvlCorr", "C"},
                {"OvlPlaats", "10003"}}),
      bouw.Vrouw("Femke", "de Vries", {{"GebDatum", "00-05-1885"}, {"OvlPlaats", "4"}}),
      bouw.Man("Adriaan", "van Dam",
               {{"DoopDatum", "03-02-1850"},
                {"DoopPlaats", "2"},
                {"BegrDatum", "01-03-1920"},
                {"BegrPlaats", "3"}}),
      bouw.Vrouw("Barbara", "Blom",
                 {{"GebDatum", "01-01-1855"}, {"GebCorr", "T"}, {"DoopDatum", "31-12-1856"}}),
      bouw.Man("Klaas", "de Vries", {{"BegrDatum", "05-06-1930"}, {"BegrCrem", "1"}}),
      bouw.Vrouw("", "Cool", {{"GebPlaats", "20004"}}),
      bouw.Man("Willem Frederik Alexander Jan", "van der Schueren-Hogeveen",
               {{"GebDatum", "01-02-1820"},
                {"GebPlaats", "5"},
                {"OvlDatum", "28-02-1890"},
                {"OvlPlaats", "5"}}),
      bouw.Vrouw("Trijntje", "", {{"GebDatum", "15-08-1822"}, {"GebCorr", "N"}}),
      bouw.Man("Jan", "Blom"),
      bouw.Vrouw("Zoë"_w, "Smit", {{"GebDatum", "00-00-1830"}, {"GebCorr", "V"}}),
      bouw.Man("Hendrik", "de Vries", {{"OvlDatum", "12-12-1900"}}),
      bouw.Vrouw("Maria", "Mol", {{"GebDatum", "09-09-1831"}, {"GebPlaats", "4"}}),
      bouw.Man("", "", {{"GebPlaats", "2"}}),
  };
}

}  // namespace

KwstStamboom BouwKwstStamboom(BouwFamilie& bouw) {
  bouw.Plaats("Delft", "ZH");                // 2
  bouw.Plaats("Breda", "NB");                // 3
  bouw.Plaats("Leiden", "ZH");               // 4
  bouw.Plaats("Sint Annaland en Omgeving");  // 5, as long as a name can be
  KwstStamboom boom;
  boom.persoon = MaakMensen(bouw);
  const std::vector<std::int16_t>& p = boom.persoon;
  bouw.Relatie(p[2], p[3], {p[1]}, {{"WHuwDatum", "01-06-1909"}, {"WHuwPlaats", "3"}});
  bouw.Relatie(p[4], p[5], {p[2]}, {{"KHuwDatum", "00-00-1879"}, {"KHuwPlaats", "2"}});
  bouw.Relatie(p[6], p[7], {p[3]}, {{"OtrDatum", "02-04-1884"}});
  bouw.Relatie(p[8], p[9], {p[4]},
               {{"WHuwDatum", "01-01-1848"}, {"HuwCorr", "T"}, {"KHuwDatum", "31-12-1849"}});
  bouw.Relatie(p[10], p[11], {p[5]}, {{"KHuwDatum", "01-01-1860"}, {"KHuwSch", "1"}});
  bouw.Relatie(p[12], p[13], {p[6]}, {{"WHuwPlaats", "4"}});
  bouw.Relatie(p[14], 0, {p[7]});
  boom.verre = bouw.Man("Pieter", "Mol");
  bouw.Relatie(boom.verre, 0, {p[13]});
  return boom;
}

std::int16_t BouwVolleBoom(BouwFamilie& bouw, int generaties) {
  std::vector<std::int16_t> persoon{0};
  const int aantal = (1 << generaties) - 1;
  for (int k = 1; k <= aantal; ++k) {
    const std::string naam = "K" + GetalTekst(k);
    persoon.push_back(k % 2 == 0 ? bouw.Man(naam, "Boom") : bouw.Vrouw(naam, "Boom"));
  }
  for (int k = 1; 2 * k < aantal; ++k) {
    const auto kind = static_cast<std::size_t>(k);
    bouw.Relatie(persoon[2 * kind], persoon[2 * kind + 1], {persoon[kind]});
  }
  return persoon[1];
}

}  // namespace lb77
