#include <gtest/gtest.h>

#include "steun/TijdelijkeMap.h"

using namespace lb77;

TEST(TijdelijkeMapTest, IsErAlleenZolangHijLeeft) {
  std::filesystem::path pad;
  {
    const TijdelijkeMap map;
    pad = map.Pad();
    EXPECT_TRUE(std::filesystem::is_directory(pad));
    SchrijfBytes(map / "onder/bestand.txt", "inhoud");
    SchrijfBytes(map / "onder/vast.txt", "inhoud");
    std::filesystem::permissions(map / "onder/vast.txt", std::filesystem::perms::owner_read);
  }
  EXPECT_FALSE(std::filesystem::exists(pad));
}

TEST(TijdelijkeMapTest, TweeMappenZijnTweeMappen) {
  const TijdelijkeMap een;
  const TijdelijkeMap twee;
  EXPECT_NE(een.Pad(), twee.Pad());
}

TEST(TijdelijkeMapTest, BytesKomenTerugZoalsZijGeschrevenZijn) {
  const TijdelijkeMap map;
  const std::string bytes("a\0\r\n\xFF", 5);
  SchrijfBytes(map / "b", bytes);
  EXPECT_EQ(LeesBytes(map / "b"), bytes);
  EXPECT_EQ(LeesBytes(map / "er niet"), "");
}
