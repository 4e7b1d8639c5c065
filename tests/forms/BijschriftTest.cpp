#include <gtest/gtest.h>

#include "forms/Bijschrift.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

TEST(Bijschrift, ZonderHetMerkVanDeSneltoets) {
  EXPECT_EQ(ZonderSneltoets("&Terug"), "Terug");
  EXPECT_EQ(ZonderSneltoets("Inde&x"), "Index");
  EXPECT_EQ(ZonderSneltoets("Personen"), "Personen");
  EXPECT_EQ(ZonderSneltoets(""), "");
}

TEST(Bijschrift, EenDubbelMerkIsEenEnTeken) {
  EXPECT_EQ(ZonderSneltoets("Jan && Piet"), "Jan & Piet");
  EXPECT_EQ(Sneltoets("Jan && Piet"), '\0');
  EXPECT_EQ(Sneltoets("Jan && &Piet"), 'P');
}

TEST(Bijschrift, EenMerkAanHetEindIsEenGewoonTeken) {
  EXPECT_EQ(ZonderSneltoets("Wat &"), "Wat &");
  EXPECT_EQ(Sneltoets("Wat &"), '\0');
}

TEST(Bijschrift, DeSneltoetsIsEenHoofdletter) {
  EXPECT_EQ(Sneltoets("&terug"), 'T');
  EXPECT_EQ(Sneltoets("Inde&x"), 'X');
  EXPECT_EQ(Sneltoets("&één"_w), static_cast<char>(0xC9));
  EXPECT_EQ(Sneltoets("&1e"), '1');
  EXPECT_EQ(Sneltoets(""), '\0');
}

}  // namespace
}  // namespace lb77
