// The checks of the files, and what they find.
#include <utility>

#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok ControleDialoog(std::vector<Blok> opties, const char* teller) {
  std::vector<Blok> delen;
  if (!opties.empty()) delen.push_back(Groep("Controle-opties", {Kolom(std::move(opties))}));
  delen.emplace_back(Velden({teller}));
  delen.emplace_back(Knoppen({"OKButton", "BackButton"}));
  return Kolom(std::move(delen));
}

}  // namespace

std::vector<Indeling> Controle() {
  return {
      {"ControlePrs", ControleDialoog({"VerwijsOuders", "GebDoop", "MaxLeeftijd", "LeeftijdOuders",
                                       "VerwijsRelaties"},
                                      "PersonenGedaan")},
      {"ControleRel", ControleDialoog({"VerwijsPartners", "OtrTrouw", "Leeftijdsverschil",
                                       "LeeftijdPartners", "VerwijsKinderen"},
                                      "RelatiesGedaan")},
      {"ControlePlts",
       ControleDialoog({"DubbelePlaatsen", "OngebruiktePlaatsen"}, "PlaatsenGedaan")},
      {"ControleOpm", ControleDialoog({}, "OpmerkingenGedaan")},
      {"Bevindingen", Kolom({
                          Velden({"SoortBox", "BevindingenLijst", "Open", "MeerLabel"}),
                          Knoppen({"KaartButton", "CorrigeerButton"}, {"BackButton"}),
                      })},
  };
}

}  // namespace lb77::indeling
