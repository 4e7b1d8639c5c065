#include <gtest/gtest.h>

#include "output/TabelRij.h"
#include "output/TekstSchrijver.h"
#include "steun/TijdelijkeMap.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class TabelRijToets : public ::testing::Test {
 protected:
  std::string Rij(const std::vector<TabelCel>& cellen, bool inHTML) {
    TekstSchrijver uit;
    EXPECT_TRUE(uit.Open(map_ / "uit.txt"));
    uit.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
    uit.ZetHTML(inHTML);
    SchrijfTabelRij(uit, cellen);
    EXPECT_TRUE(uit.Sluit());
    return LeesBytes(map_ / "uit.txt");
  }

  TijdelijkeMap map_;
};

TEST_F(TabelRijToets, VultAanEnKaptAfTotDeBreedte) {
  EXPECT_EQ(Rij({{"Dam, van", 10}, {"Gerrit Jan", 6}, {"K", 4}, {"1810-1870"}}, false),
            "Dam, van  GerritK   1810-1870\r\n");
}

TEST_F(TabelRijToets, LijntRechtsUitZonderIetsTeVerliezen) {
  EXPECT_EQ(Rij({{"12", 5, Richting::Rechts}, {"|"}}, false), "   12|\r\n");
  EXPECT_EQ(Rij({{"1234567", 5, Richting::Rechts}, {"|"}}, false), "1234567|\r\n");
}

TEST_F(TabelRijToets, BegintOokMetBlanco) {
  EXPECT_EQ(Rij({{"", 3}, {"Jan", 4}}, false), "   Jan \r\n");
}

TEST_F(TabelRijToets, StaatInHTMLTussenTags) {
  EXPECT_EQ(Rij({{std::string("René & co"_w), 10}, {"1810-    "}}, true),
            "<TR>\r\n<TD>Ren&eacute; &amp; co </TD><TD>1810-    </TD>\r\n</TR>\r\n");
}

TEST_F(TabelRijToets, IsInHTMLVetOfEenVerwijzing) {
  const std::vector<TabelCel> cellen{
      {"Bos", 5, Richting::Links, true},
      {"12", 5, Richting::Rechts, false, "KWSTDATA.HTM#12"},
  };
  EXPECT_EQ(Rij(cellen, true),
            "<TR>\r\n<TD><STRONG>Bos  </STRONG></TD>"
            "<TD><A HREF=\"KWSTDATA.HTM#12\">12</A></TD>\r\n</TR>\r\n");
  EXPECT_EQ(Rij(cellen, false), "Bos     12\r\n");
}

}  // namespace
}  // namespace lb77
