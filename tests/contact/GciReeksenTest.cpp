// The table of series: what counts, and that the index finds what a walk would find.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "contact/GciReeksen.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

std::string Vertel(const GciReeks& reeks) {
  return reeks.naam + " " + GetalTekst(reeks.plaats) + " " + GetalTekst(reeks.van) + "-" +
         GetalTekst(reeks.tot) + " x" + GetalTekst(reeks.aantal) + " (" +
         GetalTekst(reeks.laatste) + ")";
}

std::vector<std::string> Vertel(const std::vector<GciReeks>& reeksen) {
  std::vector<std::string> uit;
  for (const GciReeks& reeks : reeksen) uit.push_back(Vertel(reeks));
  return uit;
}

using Regels = std::vector<std::string>;

TEST(ReeksBij, EenPersoonTeltEenKeer) {
  GciReeksen reeksen;
  for (int keer = 0; keer < 3; ++keer) EXPECT_TRUE(reeksen.ReeksBij("Jansen", 2, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 2, 1800, 6));
  EXPECT_EQ(reeksen.Aantal(), 1);
  EXPECT_EQ(Vertel(reeksen.Neem()), Regels{"Jansen 2 1800-1800 x2 (6)"});
  EXPECT_EQ(reeksen.Aantal(), 0);
}

TEST(ReeksBij, WatIsMeegenomenTeltDaarnaNietMee) {
  GciReeksen reeksen;
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 2, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Vos", 2, 1800, 5));
  EXPECT_EQ(reeksen.Neem().size(), 2U);
  EXPECT_TRUE(reeksen.ReeksBij("Vos", 2, 1800, 5));
  EXPECT_EQ(Vertel(reeksen.Neem()), Regels{"Vos 2 1800-1800 x1 (5)"});
}

TEST(ReeksBij, ElkJaarElkePlaatsEnElkeNaamIsEenReeks) {
  GciReeksen reeksen;
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 2, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 2, 1801, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 3, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("JANSEN", 2, 1800, 5));
  EXPECT_EQ(Vertel(reeksen.Neem()),
            (Regels{"Jansen 2 1800-1800 x1 (5)", "Jansen 2 1801-1801 x1 (5)",
                    "Jansen 3 1800-1800 x1 (5)", "JANSEN 2 1800-1800 x1 (5)"}));
}

TEST(ReeksBij, WatNietVolledigOfNietZekerIsTeltNiet) {
  GciReeksen reeksen;
  EXPECT_TRUE(reeksen.ReeksBij("", 2, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 0, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", -3, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 10001, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 20002, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 2, 0, 5));
  EXPECT_EQ(reeksen.Aantal(), 0);
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 10000, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 1, -1, 5));
  EXPECT_EQ(reeksen.Aantal(), 2);
}

TEST(ReeksBij, EenVolleTabelNeemtAlleenNogWatErIs) {
  GciReeksen reeksen(2);
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 2, 1800, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 2, 1801, 5));
  EXPECT_TRUE(reeksen.ReeksBij("Jansen", 2, 1801, 6));
  EXPECT_FALSE(reeksen.ReeksBij("Jansen", 2, 1802, 6));
  EXPECT_EQ(reeksen.Aantal(), 2);
}

TEST(ReeksBij, NeemtMeerReeksenDanErPersonenZijn) {
  GciReeksen reeksen;
  for (std::int16_t jaar = -32000; jaar < 32767; ++jaar) {
    ASSERT_TRUE(reeksen.ReeksBij("Jansen", 2, jaar, 5));
  }
  EXPECT_EQ(reeksen.Aantal(), 32767 + 32000 - 1);
}

TEST(ReeksBij, EenReeksTeltAllePersonenVanEenVolleSet) {
  GciReeksen reeksen;
  for (std::int32_t nr = 2; nr <= 32767; ++nr) {
    ASSERT_TRUE(reeksen.ReeksBij("Jansen", 2, 1800, static_cast<std::int16_t>(nr)));
  }
  EXPECT_EQ(Vertel(reeksen.Neem()), Regels{"Jansen 2 1800-1800 x32766 (32767)"});
}

// The walk over the whole table, word for word.
void LoopBij(std::vector<GciReeks>& tabel, const std::string& naam, std::int16_t plaats,
             std::int16_t jaar, int gap, std::int16_t persoon) {
  if (naam.empty() || plaats <= 0 || plaats > 10000 || jaar == 0) return;
  for (GciReeks& reeks : tabel) {
    if (reeks.plaats != plaats || reeks.naam != naam) continue;
    const bool binnen = jaar >= reeks.van && jaar <= reeks.tot;
    const bool ervoor = jaar < reeks.van && jaar + gap >= reeks.van;
    const bool erachter = jaar > reeks.tot && jaar - gap <= reeks.tot;
    if (!binnen && !ervoor && !erachter) continue;
    if (ervoor) reeks.van = jaar;
    if (erachter) reeks.tot = jaar;
    if (reeks.laatste != persoon) ++reeks.aantal;
    reeks.laatste = persoon;
    return;
  }
  tabel.push_back({naam, plaats, jaar, jaar, 1, persoon});
}

TEST(ReeksBij, GeeftPreciesWatDeGangOverDeTabelGeeft) {
  std::mt19937 toeval(77);
  const auto kies = [&](int tot) {
    return static_cast<int>(toeval() % static_cast<unsigned>(tot));
  };
  const std::vector<std::string> namen{"", "Jansen", "jansen", "de Vries", "Smit/Bos"};
  GciReeksen reeksen;
  std::vector<GciReeks> tabel;
  for (std::int16_t persoon = 2; persoon < 2000; ++persoon) {
    const std::string& naam = namen[static_cast<std::size_t>(kies(5))];
    for (int keer = kies(6); keer > 0; --keer) {
      const auto plaats = static_cast<std::int16_t>(kies(10) == 0 ? 10000 + kies(3) : kies(5));
      const auto jaar = static_cast<std::int16_t>(kies(12) == 0 ? 0 : 1800 + kies(40));
      ASSERT_TRUE(reeksen.ReeksBij(naam, plaats, jaar, persoon));
      LoopBij(tabel, naam, plaats, jaar, 0, persoon);
    }
  }
  EXPECT_GT(tabel.size(), 300U);
  EXPECT_EQ(Vertel(reeksen.Neem()), Vertel(tabel));
}

}  // namespace
}  // namespace lb77
