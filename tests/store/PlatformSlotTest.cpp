#include <gtest/gtest.h>

#include <thread>
#include <utility>

#include "steun/TijdelijkeMap.h"
#include "store/PlatformSlot.h"

using namespace lb77;
using std::chrono::milliseconds;

namespace {

struct SlotTest : ::testing::Test {
  TijdelijkeMap map;
  Slot een;
  Slot ander;
};

}  // namespace

TEST_F(SlotTest, WieHetSlotHeeftHoudtDeAnderTegen) {
  EXPECT_FALSE(een.Neem(map.Pad()));
  EXPECT_TRUE(een.IsGenomen());
  EXPECT_EQ(ander.Neem(map.Pad()).tekst, "Bestand is in gebruik");
  EXPECT_FALSE(ander.IsGenomen());
  een.Laat();
  EXPECT_FALSE(ander.Neem(map.Pad()));
}

TEST_F(SlotTest, LosgelatenLaatHetNietsAchter) {
  ASSERT_FALSE(een.Neem(map.Pad()));
  een.Laat();
  EXPECT_TRUE(std::filesystem::is_empty(map.Pad()));
}

TEST_F(SlotTest, ElkeDirectoryHeeftZijnEigenSlot) {
  std::filesystem::create_directory(map / "d");
  EXPECT_FALSE(een.Neem(map.Pad()));
  EXPECT_FALSE(ander.Neem(map / "d"));
}

TEST_F(SlotTest, MetGeduldKomtMenAanDeBeurt) {
  ASSERT_FALSE(een.Neem(map.Pad()));
  std::thread later([this] {
    std::this_thread::sleep_for(milliseconds(50));
    een.Laat();
  });
  EXPECT_FALSE(ander.Neem(map.Pad(), milliseconds(10000)));
  later.join();
}

TEST_F(SlotTest, HetGeduldIsEindig) {
  ASSERT_FALSE(een.Neem(map.Pad()));
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_TRUE(ander.Neem(map.Pad(), milliseconds(50)));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, milliseconds(50));
}

TEST_F(SlotTest, EenDirectoryDieErNietIsHeeftGeenSlot) {
  EXPECT_EQ(een.Neem(map / "weg").nummer, kBestandNietGevonden);
  EXPECT_FALSE(een.IsGenomen());
}

TEST_F(SlotTest, EenSlotVerhuist) {
  ASSERT_FALSE(een.Neem(map.Pad()));
  Slot derde(std::move(een));
  EXPECT_TRUE(ander.Neem(map.Pad()));
  ASSERT_FALSE(een.Neem(map.Pad().parent_path(), milliseconds(2000)));
  een = std::move(derde);
  EXPECT_TRUE(een.IsGenomen());
  EXPECT_TRUE(ander.Neem(map.Pad()));
}
