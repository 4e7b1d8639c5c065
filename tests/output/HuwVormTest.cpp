#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>

#include "output/HuwVorm.h"

namespace lb77 {

void PrintTo(const HuwVorm& vorm, std::ostream* uit) {
  *uit << "alleen " << vorm.alleen << " samen " << vorm.samen;
}

namespace {

constexpr unsigned kO = 1;
constexpr unsigned kW = 2;
constexpr unsigned kK = 4;
constexpr unsigned kDrie = kO | kW | kK;
constexpr int kAlleBits = 127;

// All of these remark bits alone, and all others together, in each setting of `toonTrouw`.
void VerwachtBits(unsigned bekend, const std::string& toonTrouw, int bits, HuwVorm met,
                  HuwVorm zonder) {
  for (int bit = 1; bit <= 64; bit *= 2) {
    EXPECT_EQ(KiesHuwVorm(bekend, bit, toonTrouw), (bits & bit) != 0 ? met : zonder)
        << bekend << " with remark " << bit << " and " << toonTrouw;
  }
  EXPECT_EQ(KiesHuwVorm(bekend, 0, toonTrouw), zonder);
  EXPECT_EQ(KiesHuwVorm(bekend, kAlleBits & ~bits, toonTrouw), zonder);
  EXPECT_EQ(KiesHuwVorm(bekend, kAlleBits, toonTrouw), met);
}

const std::array<std::string, 4> kAlleTrouw = {"0", "1", "2", ""};

TEST(HuwVormTest, GeenGebeurtenisGeeftNiets) {
  EXPECT_EQ(KiesHuwVorm(0, kAlleBits, "2"), HuwVorm());
}

TEST(HuwVormTest, EenGebeurtenisStaatAlleen) {
  for (const std::string& trouw : kAlleTrouw) {
    for (const unsigned een : {kO, kW, kK}) {
      EXPECT_EQ(KiesHuwVorm(een, 0, trouw), (HuwVorm{een, 0}));
      EXPECT_EQ(KiesHuwVorm(een, kAlleBits, trouw), (HuwVorm{een, 0}));
    }
  }
}

TEST(HuwVormTest, OndertrouwEnKerkGaanSamenTenzijEenOpmerkingErtussenStaat) {
  for (const std::string& trouw : kAlleTrouw) {
    VerwachtBits(kO | kK, trouw, 1 | 2 | 32 | 64, {kO | kK, 0}, {0, kO | kK});
  }
}

TEST(HuwVormTest, OndertrouwEnWettigGaanSamenTenzijEenOpmerkingErtussenStaat) {
  for (const std::string& trouw : kAlleTrouw) {
    VerwachtBits(kO | kW, trouw, 1 | 2 | 4 | 8, {kO | kW, 0}, {0, kO | kW});
  }
}

TEST(HuwVormTest, WettigEnKerkGaanSamenTenzijEenOpmerkingErtussenStaat) {
  for (const std::string& trouw : kAlleTrouw) {
    VerwachtBits(kW | kK, trouw, 4 | 8 | 32 | 64, {kW | kK, 0}, {0, kW | kK});
  }
}

TEST(HuwVormTest, InstellingNulLaatDeKerkWeg) {
  VerwachtBits(kDrie, "0", 1 | 2 | 4 | 8 | 16, {kO | kW, 0}, {0, kO | kW});
}

TEST(HuwVormTest, InstellingEenLaatDeOndertrouwWeg) {
  VerwachtBits(kDrie, "1", 4 | 8 | 16 | 32 | 64, {kW | kK, 0}, {0, kW | kK});
}

TEST(HuwVormTest, ElkeAndereInstellingVerteltAlleDrie) {
  for (const std::string trouw : {"2", "", "x"}) {
    const HuwVorm wettigMetKerk{kO, kW | kK};
    const HuwVorm ondertrouwMetWettig{kK, kO | kW};
    const HuwVorm alleen{kDrie, 0};
    EXPECT_EQ(KiesHuwVorm(kDrie, 0, trouw), wettigMetKerk);
    for (const int bit : {1, 2, 1 | 2}) EXPECT_EQ(KiesHuwVorm(kDrie, bit, trouw), wettigMetKerk);
    for (const int bit : {32, 64, 32 | 64}) {
      EXPECT_EQ(KiesHuwVorm(kDrie, bit, trouw), ondertrouwMetWettig);
    }
    for (const int bit : {4, 8, 16, 1 | 32, 2 | 64, 127}) {
      EXPECT_EQ(KiesHuwVorm(kDrie, bit, trouw), alleen);
    }
  }
}

}  // namespace
}  // namespace lb77
