#include <gtest/gtest.h>

#include "app/IniPaden.h"

namespace lb77 {
namespace {

using std::filesystem::path;

path Utf8(std::u8string_view tekst) {
  return path(tekst);
}

TEST(IniPaden, EenGewoonPadStaatInWindows1252) {
  EXPECT_EQ(PadRegel("/home/jan/DATA"), "/home/jan/DATA");
  EXPECT_EQ(PadRegel(Utf8(u8"/home/andré")), "/home/andr\xE9");
  EXPECT_EQ(PadVanRegel("/home/andr\xE9"), Utf8(u8"/home/andré"));
}

TEST(IniPaden, EenPadBuitenWindows1252StaatInUtf8EnKomtTerug) {
  const path pad = Utf8(u8"/home/Иван/DATA");
  EXPECT_EQ(PadRegel(pad), "/home/\xD0\x98\xD0\xB2\xD0\xB0\xD0\xBD/DATA");
  EXPECT_EQ(PadVanRegel(PadRegel(pad)), pad);
}

TEST(IniPaden, EenPadDatInWindows1252OpUtf8LijktKomtTerug) {
  const path pad = Utf8(u8"/home/Ã©");
  EXPECT_EQ(PadVanRegel(PadRegel(pad)), pad);
}

TEST(IniPaden, EenLeegPadBlijftLeeg) {
  EXPECT_EQ(PadRegel({}), "");
  EXPECT_EQ(PadVanRegel(""), path());
}

TEST(IniPaden, WatInDeOudeDirectoryLagGaatMee) {
  EXPECT_EQ(Herplaatst("/media/a/lb77/DATA", "/media/a/lb77", "/mnt/b"), path("/mnt/b/DATA"));
  EXPECT_EQ(Herplaatst("/media/a/lb77", "/media/a/lb77", "/mnt/b"), path("/mnt/b"));
  EXPECT_EQ(Herplaatst("/media/a/lb77/x/y", "/media/a/lb77/", "/mnt/b"), path("/mnt/b/x/y"));
}

TEST(IniPaden, WatErBuitenLagBlijftStaan) {
  EXPECT_EQ(Herplaatst("/media/a/lb77-oud/DATA", "/media/a/lb77", "/b"),
            path("/media/a/lb77-oud/DATA"));
  EXPECT_EQ(Herplaatst("/media/a", "/media/a/lb77", "/b"), path("/media/a"));
  EXPECT_EQ(Herplaatst("DATA", "/media/a/lb77", "/b"), path("DATA"));
  EXPECT_EQ(Herplaatst("", "/media/a/lb77", "/b"), path());
}

TEST(IniPaden, EenLegeOudeDirectoryVerplaatstNiets) {
  EXPECT_EQ(Herplaatst("/a/DATA", "", "/b"), path("/a/DATA"));
  EXPECT_EQ(Herplaatst("DATA", "", "/b"), path("DATA"));
}

TEST(IniPaden, EenDirectoryVanEenAnderSysteemGaatOokMee) {
  EXPECT_EQ(Herplaatst("C:\\LB77\\DATA", "C:\\LB77", "/mnt/b"), path("/mnt/b") / "DATA");
  EXPECT_EQ(Herplaatst("D:\\DATA", "C:\\LB77", "/mnt/b"), path("D:\\DATA"));
}

}  // namespace
}  // namespace lb77
