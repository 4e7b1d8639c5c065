// The positions of a descendant chart.
#include <algorithm>
#include <limits>

#include "descendants/GenSchToets.h"

namespace lb77 {
namespace {

using Getallen = std::vector<int>;

class GenRijToets : public GenSchToets {
 protected:
  [[nodiscard]] Getallen Rijen() const {
    Getallen uit;
    for (int i = 0; i < tabel_.GenAantal(); ++i) uit.push_back(rijen_.Rij(i));
    return uit;
  }
  Getallen Rijen(bool centreren) {
    EXPECT_EQ(PlaatsGen(rijen_, tabel_, centreren, verloop_), Einde::Klaar);
    return Rijen();
  }
  // A tree of `aantal` entries of which nobody has more than `meeste` children; no records.
  void MaakBoom(int aantal, unsigned meeste, unsigned zaad) {
    tabel_.Begin(2, "M");
    for (int ouder = 0; tabel_.GenAantal() < aantal; ++ouder) {
      zaad = zaad * 1103515245U + 12345U;
      unsigned kinderen = (zaad >> 16U) % (meeste + 1);
      if (ouder + 1 == tabel_.GenAantal()) kinderen = std::max(kinderen, 1U);
      for (; kinderen > 0 && tabel_.GenAantal() < aantal; --kinderen) {
        tabel_.VoegToe(static_cast<std::int16_t>(tabel_.GenAantal() + 2), ouder, "M");
      }
    }
  }

  // The same by scanning the whole table at each step.
  [[nodiscard]] Getallen Afgezocht(bool centreren) const {
    const int aantal = tabel_.GenAantal();
    const auto ouder = [&](int i) { return i < aantal ? tabel_.GenOuderIndex(i) : -2; };
    const auto eerste = [&](int i) {
      int j = i + 1;
      while (j < aantal && ouder(j) != i) ++j;
      return j;
    };
    Getallen rij(static_cast<std::size_t>(aantal), -1);
    int plaats = 0;
    for (int i = 1; i >= 1;) {
      if (const int kind = eerste(i); kind < aantal) {
        i = kind;
        continue;
      }
      rij[static_cast<std::size_t>(i)] = plaats++;
      for (bool klimt = true; klimt && i >= 1;) {
        klimt = ouder(i) != ouder(i + 1);
        i = klimt ? ouder(i) : i + 1;
      }
    }
    for (int i = aantal - 1; i >= 0; --i) {
      if (rij[static_cast<std::size_t>(i)] != -1) continue;
      int kleinste = 9999;
      int grootste = 0;
      for (int j = i + 1; j < aantal; ++j) {
        if (ouder(j) != i) continue;
        kleinste = std::min(kleinste, rij[static_cast<std::size_t>(j)]);
        grootste = std::max(grootste, rij[static_cast<std::size_t>(j)]);
      }
      rij[static_cast<std::size_t>(i)] = centreren ? (kleinste + grootste) / 2 : kleinste;
    }
    return rij;
  }
};

TEST_F(GenRijToets, EenStamouderZonderKinderenStaatVooraan) {
  Plaats(Kind("Jan"));
  EXPECT_EQ(Rijen(), Getallen{0});
  EXPECT_EQ(rijen_.Aantal(), 1);
  EXPECT_EQ(rijen_.Blad(0), 0);
}

TEST_F(GenRijToets, EenOuderStaatOpDeHoogteVanZijnEnigeKind) {
  const auto jan = Kind("Jan");
  Gezin(jan, {Kind("Piet")});
  Plaats(jan);
  EXPECT_EQ(Rijen(false), (Getallen{0, 0}));
  EXPECT_EQ(Rijen(true), (Getallen{0, 0}));
}

TEST_F(GenRijToets, EenOuderVanDrieStaatVoorHetEersteOfInHetMidden) {
  const auto jan = Kind("Jan");
  Gezin(jan, {Kind("Piet"), Kind("Klaas"), Kind("Kees")});
  Plaats(jan);
  EXPECT_EQ(Rijen(false), (Getallen{0, 0, 1, 2}));
  EXPECT_EQ(Rijen(true), (Getallen{1, 0, 1, 2}));
}

TEST_F(GenRijToets, EenHalvePlaatsWordtNaarVorenAfgerond) {
  const auto jan = Kind("Jan");
  Gezin(jan, {Kind("Piet"), Kind("Klaas")});
  Plaats(jan);
  EXPECT_EQ(Rijen(true), (Getallen{0, 0, 1}));
}

// Entries: 0; its children 1, 2, 3; 4 and 5 of 1; 6 of 3; 7, 8, 9 of 6.
TEST_F(GenRijToets, BladerenStaanInDeVolgordeVanDeTakken) {
  tabel_.Begin(2, "M");
  for (const int ouder : {0, 0, 0, 1, 1, 3, 6, 6, 6}) {
    tabel_.VoegToe(static_cast<std::int16_t>(tabel_.GenAantal() + 2), ouder, "M");
  }
  EXPECT_EQ(Rijen(false), (Getallen{0, 0, 2, 3, 0, 1, 3, 3, 4, 5}));
  EXPECT_EQ(Rijen(true), (Getallen{2, 0, 2, 4, 0, 1, 4, 3, 4, 5}));
  EXPECT_EQ(rijen_.Aantal(), 6);
  Getallen bladeren;
  for (int rij = 0; rij < rijen_.Aantal(); ++rij) bladeren.push_back(rijen_.Blad(rij));
  EXPECT_EQ(bladeren, (Getallen{4, 5, 2, 7, 8, 9}));
  EXPECT_EQ(rijen_.Kinderen(0).van, 0);
  EXPECT_EQ(rijen_.Kinderen(0).tot, 4);
}

TEST_F(GenRijToets, ElkeBoomStaatZoalsBijAfzoekenVanDeTabel) {
  for (unsigned zaad = 1; zaad <= 40; ++zaad) {
    MaakBoom(2 + static_cast<int>(zaad * 7), 1 + zaad % 6, zaad);
    EXPECT_EQ(Rijen(false), Afgezocht(false)) << zaad;
    EXPECT_EQ(Rijen(true), Afgezocht(true)) << zaad;
  }
}

TEST_F(GenRijToets, TweeduizendHoofdpersonenPassen) {
  tabel_.Begin(2, "M");
  for (int i = 1; i < kMaxHoofdpersonen; ++i) {
    tabel_.VoegToe(static_cast<std::int16_t>(i + 2), 0, "M");
  }
  Rijen(true);
  EXPECT_EQ(rijen_.Aantal(), 1999);
  EXPECT_EQ(rijen_.Rij(1999), 1998);
  EXPECT_EQ(rijen_.Rij(0), 999);
}

TEST_F(GenRijToets, ElkePersoonWordtGetoondEnElkKanHetStoppen) {
  MaakBoom(5, 2, 3);
  Getallen personen;
  int tests = 0;
  verloop_.toon = [&](int persoon, int) { personen.push_back(persoon); };
  verloop_.afbreken = [&] { return ++tests == 4; };
  EXPECT_EQ(PlaatsGen(rijen_, tabel_, false, verloop_), Einde::Afgebroken);
  EXPECT_EQ(personen.size(), 3U);
  EXPECT_EQ(personen.front(), 2);
  tests = std::numeric_limits<int>::min();
  personen.clear();
  EXPECT_EQ(PlaatsGen(rijen_, tabel_, false, verloop_), Einde::Klaar);
  std::sort(personen.begin(), personen.end());
  EXPECT_EQ(personen, (Getallen{2, 3, 4, 5, 6}));
}

}  // namespace
}  // namespace lb77
