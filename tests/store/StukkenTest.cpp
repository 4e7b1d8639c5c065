#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "store/Stukken.h"

using namespace lb77;

namespace {

const Roepuitslag kOnderbroken{-1, true, {4, "Onderbroken"}};
const Roepuitslag kKapot{-1, false, {57, "Fout van de schijf"}};

// A system whose calls end as it is told; behind the list each call does all that is asked.
struct StukkenTest : ::testing::Test {
  Roepuitslag Volgende(std::size_t gevraagd) {
    ++roepen;
    if (stukken.empty()) return {static_cast<std::ptrdiff_t>(gevraagd)};
    const Roepuitslag stuk = stukken.front();
    stukken.erase(stukken.begin());
    return stuk;
  }
  SysteemFout Schrijf(std::string_view tekst) {
    return SchrijfInStukken(2, tekst, [&](std::uint64_t plaats, std::span<const char> bron) {
      const Roepuitslag stuk = Volgende(bron.size());
      for (std::ptrdiff_t i = 0; i < stuk.bytes; ++i) {
        bestand.at(plaats + static_cast<std::size_t>(i)) = bron[static_cast<std::size_t>(i)];
      }
      return stuk;
    });
  }
  Leesuitslag Lees(std::span<char> doel) {
    return LeesInStukken(2, doel, [&](std::uint64_t plaats, std::span<char> waarin) {
      const Roepuitslag stuk = Volgende(std::min(waarin.size(), bestand.size() - plaats));
      for (std::ptrdiff_t i = 0; i < stuk.bytes; ++i) {
        waarin[static_cast<std::size_t>(i)] = bestand.at(plaats + static_cast<std::size_t>(i));
      }
      return stuk;
    });
  }

  std::vector<Roepuitslag> stukken;
  int roepen = 0;
  std::string bestand = "..........";
  std::array<char, 4> doel{'?', '?', '?', '?'};
};

}  // namespace

TEST_F(StukkenTest, WatInEenKeerLuktIsEenRoep) {
  EXPECT_FALSE(Schrijf("abcd"));
  EXPECT_EQ(bestand, "..abcd....");
  EXPECT_EQ(roepen, 1);
}

TEST_F(StukkenTest, EenKorteSchrijfactieGaatVerderWaarZijOphield) {
  stukken = {{1}, {2}};
  EXPECT_FALSE(Schrijf("abcd"));
  EXPECT_EQ(bestand, "..abcd....");
  EXPECT_EQ(roepen, 3);
}

TEST_F(StukkenTest, EenFoutNaEenStukIsEenFout) {
  stukken = {{3}, kKapot};
  EXPECT_EQ(Schrijf("abcd").nummer, 57);
  EXPECT_EQ(bestand, "..abc.....");
}

TEST_F(StukkenTest, EenSchrijfactieDieNietsSchrijftIsEenVolleSchijf) {
  stukken = {{2}, {0}};
  EXPECT_EQ(Schrijf("abcd").nummer, kSchijfVol);
  EXPECT_EQ(roepen, 2);
}

TEST_F(StukkenTest, EenOnderbrokenSchrijfactieWordtHerhaald) {
  stukken = {kOnderbroken, {2}, kOnderbroken};
  EXPECT_FALSE(Schrijf("abcd"));
  EXPECT_EQ(bestand, "..abcd....");
}

TEST_F(StukkenTest, EenOnderbrokenLeesactieWordtHerhaald) {
  bestand = "..abcdefgh";
  stukken = {kOnderbroken, {2}, kOnderbroken};
  const Leesuitslag uitslag = Lees(doel);
  EXPECT_FALSE(uitslag.fout);
  EXPECT_EQ(uitslag.gelezen, 4U);
  EXPECT_EQ(std::string(doel.data(), 4), "abcd");
}

TEST_F(StukkenTest, EenLeesfoutHalverwegeIsEenFoutOokAlIsErIetsGelezen) {
  bestand = "..abcdefgh";
  stukken = {{3}, kKapot};
  const Leesuitslag uitslag = Lees(doel);
  EXPECT_EQ(uitslag.fout.tekst, "Fout van de schijf");
  EXPECT_EQ(uitslag.gelezen, 3U);
}

TEST_F(StukkenTest, HetEindeVanHetBestandIsGeenFout) {
  bestand = "..ab";
  stukken = {{2}, {0}};
  const Leesuitslag uitslag = Lees(doel);
  EXPECT_FALSE(uitslag.fout);
  EXPECT_EQ(uitslag.gelezen, 2U);
}
