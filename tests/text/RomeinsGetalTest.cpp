#include <gtest/gtest.h>

#include <string>

#include "text/RomeinsGetal.h"

namespace lb77 {
namespace {

TEST(RomeinsGetalTest, SchrijftElkTekenEnElkeAftrekking) {
  EXPECT_EQ(RomeinsGetal(1), "I");
  EXPECT_EQ(RomeinsGetal(3), "III");
  EXPECT_EQ(RomeinsGetal(4), "IV");
  EXPECT_EQ(RomeinsGetal(9), "IX");
  EXPECT_EQ(RomeinsGetal(14), "XIV");
  EXPECT_EQ(RomeinsGetal(40), "XL");
  EXPECT_EQ(RomeinsGetal(90), "XC");
  EXPECT_EQ(RomeinsGetal(444), "CDXLIV");
  EXPECT_EQ(RomeinsGetal(1888), "MDCCCLXXXVIII");
  EXPECT_EQ(RomeinsGetal(3999), "MMMCMXCIX");
}

TEST(RomeinsGetalTest, IsLeegVoorNulEnNegatief) {
  EXPECT_EQ(RomeinsGetal(0), "");
  EXPECT_EQ(RomeinsGetal(-5), "");
}

TEST(RomeinsGetalTest, SchrijftHetHoogsteGetalUit) {
  EXPECT_EQ(RomeinsGetal(32767), std::string(32, 'M') + "DCCLXVII");
}

}  // namespace
}  // namespace lb77
