// A family on whose cards every field stands.
#pragma once

#include "steun/BouwFamilie.h"

namespace lb77 {

// Persons 2 to 7, of whom 7 is the continuation of 2; relations 2 to 6; places 2 and 3.
inline void BouwKaartFamilie(BouwFamilie& bouw) {
  bouw.Plaats("Delft", "ZH");
  bouw.Plaats("Breda", "NB");
  const auto jan = bouw.Man("Jan Pieter", "van Dam",
                            {{"GebDatum", "01-02-1800"},
                             {"GebCorr", "C"},
                             {"GebPlaats", "2"},
                             {"DoopDatum", "03-02-1800"},
                             {"DoopPlaats", "3"},
                             {"OvlDatum", "00-00-1870"},
                             {"OvlCorr", "N"},
                             {"BegrDatum", "05-06-1870"},
                             {"BegrPlaats", "20002"},
                             {"Beroep", "winkelier"},
                             {"OpmRecord", "4"},
                             {"OpmCode", "6"}});
  const auto kee = bouw.Vrouw("Cornelia", "Cool",
                              {{"GebDatum", "01-01-1805"},
                               {"GebCorr", "T"},
                               {"GebPlaats", "3"},
                               {"DoopDatum", "31-12-1806"},
                               {"DoopPlaats", "2"},
                               {"OvlDatum", "07-08-1881"},
                               {"OvlCorr", "V"},
                               {"BegrPlaats", "3"},
                               {"BegrCrem", "1"}});
  const auto wie = bouw.Persoon('?', "", "");
  const auto zoon = bouw.Man("Adriaan", "van Dam",
                             {{"OvlDatum", "00-05-1890"},
                              {"OvlCorr", "T"},
                              {"OvlPlaats", "2"},
                              {"BegrDatum", "00-00-1891"}});
  const auto els = bouw.Vrouw("Els", "");
  bouw.Relatie(jan, kee, {zoon},
               {{"OtrDatum", "01-04-1825"},
                {"OtrPlaats", "2"},
                {"WHuwDatum", "20-04-1825"},
                {"WHuwPlaats", "3"},
                {"HuwCorr", "C"},
                {"KHuwDatum", "21-04-1825"},
                {"KHuwPlaats", "2"},
                {"OpmRecord", "5"},
                {"OpmCode", "-8"}});
  bouw.Relatie(jan, wie, {},
               {{"HuwSwPs", "1"},
                {"WHuwDatum", "00-00-1830"},
                {"KHuwSch", "1"},
                {"KHuwDatum", "00-00-1840"},
                {"KHuwPlaats", "3"}});
  bouw.Relatie(jan, 0, {},
               {{"HuwSwPs", "2"},
                {"WHuwDatum", "01-01-1835"},
                {"WHuwPlaats", "2"},
                {"HuwCorr", "T"},
                {"KHuwDatum", "00-00-1836"},
                {"KHuwPlaats", "3"}});
  bouw.Relatie(jan, els);
  bouw.Relatie(0, 0);
}

}  // namespace lb77
