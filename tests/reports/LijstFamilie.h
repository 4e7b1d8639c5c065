// Three generations for the lists: equal names in upper and lower case, missing names and dates.
#pragma once

#include "steun/BouwFamilie.h"

namespace lb77 {

// Persons 2 to 9, relations 2 to 4, places 2 and 3. Person 2 is the forefather of 4, 5, 7 and 9.
inline void BouwLijstFamilie(BouwFamilie& bouw) {
  bouw.Plaats("Delft", "ZH");
  bouw.Plaats("Breda", "NB");
  const auto jan = bouw.Man("Jan Pieter", "van Dam",
                            {{"GebDatum", "01-02-1800"},
                             {"GebPlaats", "2"},
                             {"DoopDatum", "03-02-1800"},
                             {"DoopPlaats", "2"},
                             {"OvlDatum", "05-06-1870"},
                             {"OvlPlaats", "3"},
                             {"BegrDatum", "08-06-1870"},
                             {"BegrPlaats", "10002"},
                             {"Beroep", "Schoenmaker"}});
  const auto els = bouw.Vrouw("Els", "Vos", {{"GebDatum", "00-00-1805"}});
  const auto kee = bouw.Vrouw("Kee", "van Dam", {{"DoopDatum", "04-03-1831"}, {"DoopPlaats", "3"}});
  const auto piet =
      bouw.Man("Piet", "VAN DAM", {{"GebDatum", "07-08-1835"}, {"OvlDatum", "09-10-1901"}});
  const auto wit = bouw.Man("", "de Wit", {{"Beroep", "schoenmakersknecht"}});
  const auto mia = bouw.Vrouw("Mia", "");
  const auto ans = bouw.Persoon('?', "Ans", "Vos", {{"BegrDatum", "11-12-1890"}});
  const auto kind = bouw.Man("Kind", "Van Dam", {{"GebDatum", "01-01-1862"}});
  bouw.Relatie(jan, els, {kee, piet},
               {{"OtrDatum", "01-05-1830"},
                {"OtrPlaats", "2"},
                {"WHuwDatum", "10-05-1830"},
                {"WHuwPlaats", "2"}});
  bouw.Relatie(wit, kee, {mia}, {{"KHuwDatum", "06-07-1852"}, {"KHuwPlaats", "2"}});
  bouw.Relatie(piet, ans, {kind});
  bouw.OpmerkingBijPersoon(jan, 4096,
                           {"Woonde op de Markt te Delft.", "Kocht een huis op de MARKT."});
  bouw.OpmerkingBijRelatie(2, -256, {"Getuige was de marktmeester."});
}

}  // namespace lb77
