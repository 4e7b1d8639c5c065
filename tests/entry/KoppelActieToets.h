// Two families, and what an action on their links leaves.
#pragma once

#include <string>
#include <string_view>

#include "steun/FamilieToets.h"
#include "text/Getallen.h"

namespace lb77 {

// Relation 2 joins Jan (2) and Anna (3), with the children Kees (4) and Truus (5); relation 3 joins
// Piet (6) and Mien (7), with Wim (8). Otto (9) has neither parents nor a known sex.
class KoppelActieToets : public FamilieToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Dam");
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Man("Kees", "Dam", {{"GebDatum", "01-01-1902"}});
    Bouw().Vrouw("Truus", "Dam", {{"GebDatum", "01-01-1901"}});
    Bouw().Man("Piet", "Berg");
    Bouw().Vrouw("Mien", "Kuil");
    Bouw().Man("Wim", "Berg");
    Bouw().Persoon('?', "Otto", "Los");
    Bouw().Relatie(2, 3, {4, 5});
    Bouw().Relatie(6, 7, {8});
  }

  // "4 5 ", as the list of the relation stands.
  std::string Kinderen(std::int16_t relatie) {
    std::string uit;
    Stil([&](Hoofdmodule& hoofd) {
      Kindtab tab{};
      EXPECT_TRUE(hoofd.Relatie.VulKindtab(relatie, tab).heel);
      for (const std::int16_t nr : tab) uit += nr == 0 ? "" : GetalTekst(nr) + " ";
    });
    return uit;
  }
  // The same of a person's relations.
  std::string Relaties(std::int16_t persoon) {
    std::string uit;
    Stil([&](Hoofdmodule& hoofd) {
      Huwtab tab{};
      EXPECT_TRUE(hoofd.Persoon.VulHuwtab(persoon, tab).heel);
      for (const std::int16_t nr : tab) uit += nr == 0 ? "" : GetalTekst(nr) + " ";
    });
    return uit;
  }
  int Ouders(std::int16_t persoon) {
    int ouders = -1;
    Stil([&](Hoofdmodule& hoofd) {
      if (hoofd.Persoon.Lees(persoon)) ouders = hoofd.Persoon.RelNrOuders();
    });
    return ouders;
  }
  // "man x vrouw" of a relation.
  std::string Paar(std::int16_t relatie) {
    std::string uit;
    Stil([&](Hoofdmodule& hoofd) {
      if (!hoofd.Relatie.Lees(relatie)) return;
      uit = GetalTekst(hoofd.Relatie.ManNr()) + " x " + GetalTekst(hoofd.Relatie.VrouwNr());
    });
    return uit;
  }
};

}  // namespace lb77
