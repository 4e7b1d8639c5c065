#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "steun/NepGesprek.h"

using namespace lb77;
using Regels = std::vector<std::string>;

TEST(NepGesprekTest, BewaartBoxenAlsInEenVerslag) {
  NepGesprek gesprek;
  gesprek.Fout("Regel een\nen \"twee\"");
  gesprek.Waarschuw("Pas op");
  gesprek.Informeer("Klaar");
  EXPECT_EQ(gesprek.Neem(), (Regels{R"(! stop "Regel een\nen \"twee\"")", R"(! uitroep "Pas op")",
                                    R"(! info "Klaar")"}));
  EXPECT_EQ(gesprek.Regels(), Regels{});
}

TEST(NepGesprekTest, GeeftDeAntwoordenOpVolgorde) {
  NepGesprek gesprek;
  gesprek.Antwoordt(Antwoord::Ja);
  gesprek.Antwoordt(Antwoord::Nee);
  EXPECT_TRUE(gesprek.Vraag("Een ?"));
  EXPECT_FALSE(gesprek.Vraag("Twee ?"));
  EXPECT_EQ(gesprek.Neem(),
            (Regels{R"(? vraag Ja/Nee "Een ?" -> Ja)", R"(? vraag Ja/Nee "Twee ?" -> Nee)"}));
}

TEST(NepGesprekTest, EenVraagZonderAntwoordLaatDeToetsMislukken) {
  NepGesprek gesprek;
  bool antwoord = true;
  EXPECT_NONFATAL_FAILURE(antwoord = gesprek.Vraag("Doorgaan ?"), "vraag zonder antwoord");
  EXPECT_FALSE(antwoord);
}

TEST(NepGesprekTest, EenAntwoordDatOverblijftLaatDeToetsMislukken) {
  EXPECT_NONFATAL_FAILURE(
      {
        NepGesprek gesprek;
        gesprek.Antwoordt(Antwoord::Ja);
      },
      "antwoord niet gebruikt: Ja");
}

TEST(NepGesprekTest, EenBestandsvraagLaatDeToetsMislukken) {
  NepGesprek gesprek;
  EXPECT_NONFATAL_FAILURE(EXPECT_FALSE(gesprek.VraagBestand({})), "vraag om een bestand");
}
