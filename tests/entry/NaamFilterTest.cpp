#include <gtest/gtest.h>

#include <string>

#include "entry/NaamFilter.h"

namespace lb77 {
namespace {

bool Past(std::string_view filter, std::string_view naam) {
  const std::string tekst(filter);
  const NaamFilter achter{.FilterAan = true, .FilterVoorNm = {}, .FilterAchterNm = tekst};
  const NaamFilter voor{.FilterAan = true, .FilterVoorNm = tekst, .FilterAchterNm = {}};
  EXPECT_EQ(achter.LaatDoor("", naam), voor.LaatDoor(naam, ""));
  return achter.LaatDoor("", naam);
}

TEST(NaamFilterTest, HoofdlettersEnKleineLettersVerschillen) {
  EXPECT_FALSE(Past("de", "De"));
  EXPECT_TRUE(Past("De", "De"));
  EXPECT_FALSE(Past("de*", "De Vries"));
}

TEST(NaamFilterTest, ZonderSterretjeMoetDeHeleNaamGelijkZijn) {
  EXPECT_FALSE(Past("Jan", "Jansen"));
  EXPECT_FALSE(Past("Jansen", "Jan"));
  EXPECT_TRUE(Past("  Jansen  ", "Jansen"));
}

TEST(NaamFilterTest, HetSterretjeVergelijktHetBegin) {
  EXPECT_TRUE(Past("Jan*", "Jansen"));
  EXPECT_TRUE(Past("Jan*", "Jan"));
  EXPECT_FALSE(Past("Jan*", "Ja"));
  EXPECT_TRUE(Past("*", ""));
  EXPECT_TRUE(Past("van *", "van Dam"));
  EXPECT_FALSE(Past("van *", "van"));
}

TEST(NaamFilterTest, EenSterretjeDatNietAchteraanStaatIsEenGewoonTeken) {
  EXPECT_TRUE(Past("J*n", "J*n"));
  EXPECT_FALSE(Past("J*n", "Jan"));
  EXPECT_TRUE(Past("J**", "J*n"));
}

TEST(NaamFilterTest, EenLegeTekstLaatIedereenDoor) {
  EXPECT_TRUE(Past("", "Jansen"));
  EXPECT_TRUE(Past("   ", "Jansen"));
}

TEST(NaamFilterTest, BeideNamenMoetenPassen) {
  const NaamFilter filter{.FilterAan = true, .FilterVoorNm = "Jan", .FilterAchterNm = "V*"};
  EXPECT_TRUE(filter.LaatDoor("Jan", "Vos"));
  EXPECT_FALSE(filter.LaatDoor("Jan", "Bos"));
  EXPECT_FALSE(filter.LaatDoor("Piet", "Vos"));
}

TEST(NaamFilterTest, EenFilterDatUitStaatLaatIedereenDoor) {
  const NaamFilter filter{.FilterAan = false, .FilterVoorNm = "Jan", .FilterAchterNm = "Vos"};
  EXPECT_TRUE(filter.LaatDoor("Piet", "Bos"));
}

}  // namespace
}  // namespace lb77
