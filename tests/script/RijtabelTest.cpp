#include <gmock/gmock.h>

#include "forms/Formulier.h"
#include "forms/Regels.h"
#include "forms/Rij.h"
#include "script/Rijtabel.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;

class Perkolom final : public Formulier {
 public:
  Perkolom() : Formulier("Perkolom", "") {}
  Tekstvak Voor{*this, "Voor"};
  Rij<Knop, 4> Nr{*this, "Nr", 1, "k"};
  Rij<Vinkje, 4> Vink{*this, "Vink", 1, "v"};
  Tekstvak Na{*this, "Na"};
  Rij<Tekstvak, 2> Los{*this, "Los", 0};
  Rij<Tekstvak, 1> Een{*this, "Een", 0};
};

struct Regel {
  Regel(Formulier& formulier, int nummer)
      : Nr(formulier, Genummerd("Nr", nummer), "k"), Naam(formulier, Genummerd("Naam", nummer)) {}
  Knop Nr;
  Tekstvak Naam;
};

class Perregel final : public Formulier {
 public:
  Perregel() : Formulier("Perregel", "") {}
  Regels<Regel, 3> Alle{*this, 1};
};

TEST(Rijtabel, FamiliesMetDezelfdeNummersZijnEenTabelEnEenAlleenNiet) {
  const Perkolom vorm;
  EXPECT_THAT(BedieningenRegels(vorm.Bedieningen()),
              ElementsAre("= Voor \"\"", "= (*) Nr Vink", "= (1) \"k\" uit", "= (2) \"k\" uit",
                          "= (3) \"k\" uit", "= (4) \"k\" uit", "= Na \"\"", "= Los(0) \"\"",
                          "= Los(1) \"\"", "= Een(0) \"\""));
}

TEST(Rijtabel, RegelsWordenRijVoorRijVerteld) {
  Perregel vorm;
  vorm.Alle(2).Naam.ZetTekst("Jan \"J.\"");
  EXPECT_THAT(BedieningenRegels(vorm.Bedieningen()),
              ElementsAre("= (*) Nr Naam", "= (1) \"k\" \"\"", R"(= (2) "k" "Jan \"J.\"")",
                          "= (3) \"k\" \"\""));
}

TEST(Rijtabel, VerborgenRijenDelenEenRegel) {
  Perregel vorm;
  for (const int nummer : {2, 3}) {
    vorm.Alle(nummer).Nr.ZetZichtbaar(false);
    vorm.Alle(nummer).Naam.ZetZichtbaar(false);
  }
  EXPECT_THAT(BedieningenRegels(vorm.Bedieningen()),
              ElementsAre("= (*) Nr Naam", "= (1) \"k\" \"\"", "= (2-3) [verborgen]"));
  vorm.Alle(2).Naam.ZetZichtbaar(true);
  EXPECT_THAT(
      BedieningenRegels(vorm.Bedieningen()),
      ElementsAre("= (*) Nr Naam", "= (1) \"k\" \"\"", "= (2) - \"\"", "= (3) [verborgen]"));
}

TEST(Rijtabel, EenUitgeschakeldeCelIsTeZien) {
  Perregel vorm;
  vorm.Alle(1).Nr.ZetIngeschakeld(false);
  EXPECT_EQ(BedieningenRegels(vorm.Bedieningen())[1], "= (1) \"k\" [uit] \"\"");
}

}  // namespace
}  // namespace lb77
