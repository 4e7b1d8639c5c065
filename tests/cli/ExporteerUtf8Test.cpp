// `exporteer --utf8`.
#include "cli/OpdrachtToets.h"

namespace lb77 {
namespace {

class ExporteerUtf8 : public OpdrachtToets {
 protected:
  void SetUp() override {
    MaakFamilie(
        "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Ren\xE2"
        "e /van Dam/\n1 SEX M\n0 TRLR\n");
  }
};

TEST_F(ExporteerUtf8, SchrijftGedcom551EnZegtDat) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.bestand = map_ / "uit.ged";
  argumenten.utf8 = true;
  EXPECT_EQ(Doe("exporteer", argumenten), 0) << fout_;
  const std::string bytes = LeesBytes(map_ / "uit.ged");
  EXPECT_TRUE(
      bytes.starts_with("\xEF\xBB\xBF"
                        "0 HEAD\r\n1 SOUR LB77\r\n"));
  EXPECT_TRUE(
      bytes.ends_with("0 @I2@ INDI\r\n1 NAME Ren\xC3\xA9 /van Dam/\r\n2 GIVN Ren\xC3\xA9\r\n"
                      "2 _LBACHT van Dam\r\n2 SPFX van\r\n2 SURN Dam\r\n1 SEX M\r\n0 TRLR\r\n"));
  EXPECT_NE(uit_.find("Soort bestand: GEDCOM 5.5.1, tekenset UTF-8\n"), std::string::npos) << uit_;
}

}  // namespace
}  // namespace lb77
