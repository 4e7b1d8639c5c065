#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "text/Letterlijk.h"
#include "text/Pad.h"

namespace lb77 {
namespace {

TEST(PadTest, EenPadKomtAlsTekstEnAlsPadTerug) {
  const std::filesystem::path pad(u8"familie/Curaçao – één");
  EXPECT_EQ(PadTekst(pad), "familie/Curaçao – één"_w);
  EXPECT_EQ(PadVan("familie/Curaçao – één"_w), pad);
}

TEST(PadTest, WatWindowsNietHeeftStaatErMetVraagtekensOfAlsBasisletter) {
  EXPECT_EQ(PadTekst(std::filesystem::path(u8"Łódź/Иван")), "Lódz/????"_w);
}

#ifdef _WIN32
TEST(PadTest, EenNaamMetEenHalfTekenIsTochTeLezen) {
  EXPECT_EQ(PadTekst(std::filesystem::path(L"a\xD800 b")), "a? b");
}
#endif

TEST(PadTest, EenLeegPadIsEenLegeTekst) {
  EXPECT_EQ(PadTekst({}), "");
  EXPECT_TRUE(PadVan("").empty());
}

}  // namespace
}  // namespace lb77
