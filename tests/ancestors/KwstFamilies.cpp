#include "ancestors/KwstFamilies.h"

#include <vector>

namespace lb77 {

std::int16_t BouwNeefEnNicht(BouwFamilie& bouw) {
  const auto proband = bouw.Vrouw("Petra", "Vos", {{"GebDatum", "01-01-1900"}});
  const auto vader = bouw.Man("Vincent", "Vos");
  const auto moeder = bouw.Vrouw("Willemien", "Wolf");
  const auto opa = bouw.Man("Albert", "Vos");
  const auto oma = bouw.Vrouw("Xandra", "Haas");
  const auto opa2 = bouw.Man("Yvo", "Wolf");
  const auto oma2 = bouw.Vrouw("Bea", "Vos");
  const auto stam = bouw.Man("Gijs", "Vos");
  const auto stammoeder = bouw.Vrouw("Hilda", "Ree");
  const auto oudste = bouw.Man("Frans", "Ree", {{"OvlDatum", "00-00-1799"}});
  bouw.Relatie(oudste, 0, {stammoeder});
  bouw.Relatie(stam, stammoeder, {opa, oma2});
  bouw.Relatie(opa, oma, {vader});
  bouw.Relatie(opa2, oma2, {moeder});
  bouw.Relatie(vader, moeder, {proband});
  return proband;
}

std::int16_t BouwHalveOuders(BouwFamilie& bouw) {
  const auto proband = bouw.Man("Piet", "Half");
  const auto vader = bouw.Man("Vic", "Half");
  const auto oma = bouw.Vrouw("Moe", "Heel");
  const auto overgrootvader = bouw.Man("Opa", "Heel");
  bouw.Relatie(vader, 0, {proband});
  bouw.Relatie(0, oma, {vader});
  bouw.Relatie(overgrootvader, 0, {oma});
  return proband;
}

std::int16_t BouwBroersEnZussen(BouwFamilie& bouw) {
  const auto proband = bouw.Man("Piet", "Bos");
  const auto zus = bouw.Vrouw("Zus", "Bos");
  const auto broer = bouw.Man("Broer", "Bos");
  const auto vader = bouw.Man("Vader", "Bos");
  const auto oom = bouw.Man("Oom", "Bos");
  const auto moeder = bouw.Vrouw("Moeder", "Dal");
  const auto tante = bouw.Vrouw("Tante", "Dal");
  const auto opa = bouw.Man("Opa", "Bos");
  const auto opa2 = bouw.Man("Opa", "Dal");
  bouw.Relatie(vader, moeder, {zus, proband, broer});
  bouw.Relatie(opa, 0, {vader, oom});
  bouw.Relatie(opa2, 0, {tante, moeder});
  // The sister married once, the brother and the aunt twice; a father of one of hers is known.
  bouw.Relatie(bouw.Man("Zwager", "Een"), zus);
  bouw.Relatie(broer, bouw.Vrouw("Schoonzus", "Twee"));
  bouw.Relatie(broer, bouw.Vrouw("Schoonzus", "Drie"));
  const auto aangetrouwd = bouw.Man("Oom", "Vier");
  bouw.Relatie(aangetrouwd, tante);
  bouw.Relatie(bouw.Man("Oom", "Vijf"), tante);
  bouw.Relatie(bouw.Man("Vader", "Vier"), 0, {aangetrouwd});
  return proband;
}

std::int16_t BouwGrootGezin(BouwFamilie& bouw) {
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 28; ++i) kinderen.push_back(bouw.Man("Kind", "Velen"));
  bouw.Relatie(bouw.Man("Vader", "Velen"), 0, kinderen);
  return kinderen[26];
}

std::int16_t BouwHertrouwden(BouwFamilie& bouw) {
  const auto proband = bouw.Man("Piet", "Meer");
  const auto vader = bouw.Man("Vader", "Meer");
  const auto moeder = bouw.Vrouw("Moeder", "Plas");
  const auto derde = bouw.Vrouw("Derde", "Beek", {{"GebDatum", "05-05-1920"}});
  const auto schoonvader = bouw.Man("Schoonvader", "Beek");
  const auto schoonmoeder = bouw.Vrouw("Schoonmoeder", "Bron");
  bouw.Relatie(vader, 0);
  bouw.Relatie(vader, moeder, {proband});
  bouw.Relatie(bouw.Man("Stiefvader", "Sloot"), moeder);
  bouw.Relatie(proband, bouw.Vrouw("Eerste", "Kreek"));
  bouw.Relatie(proband, bouw.Vrouw("Tweede", "Poel"));
  bouw.Relatie(proband, derde);
  bouw.Relatie(schoonvader, schoonmoeder, {derde});
  return proband;
}

}  // namespace lb77
