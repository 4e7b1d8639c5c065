#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "exchange/RegelLezer.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

class RegelLezerTest : public ::testing::Test {
 protected:
  void Open(std::string_view bytes) {
    std::ofstream(Pad(), std::ios::binary) << bytes;
    ASSERT_FALSE(lezer_.Open(Pad()));
  }
  std::vector<std::string> Rest() {
    std::vector<std::string> regels;
    std::string_view regel;
    while (lezer_.Volgende(regel)) regels.emplace_back(regel);
    EXPECT_FALSE(lezer_.Fout());
    return regels;
  }
  std::vector<std::string> Lees(std::string_view bytes) {
    Open(bytes);
    return Rest();
  }
  std::filesystem::path Pad() const { return map_.Pad() / "in.ged"; }

  TijdelijkeMap map_;
  RegelLezer lezer_;
};

using Regelrij = std::vector<std::string>;

TEST_F(RegelLezerTest, EenLeegBestandHeeftGeenRegels) {
  Open("");
  EXPECT_TRUE(lezer_.IsAanEinde());
  EXPECT_EQ(Rest(), Regelrij{});
}

TEST_F(RegelLezerTest, DrieSoortenRegeleinde) {
  EXPECT_EQ(Lees("a\nb\n"), (Regelrij{"a", "b"}));
  EXPECT_EQ(Lees("a\r\nb\r\n"), (Regelrij{"a", "b"}));
  EXPECT_EQ(Lees("a\rb\r"), (Regelrij{"a", "b"}));
}

TEST_F(RegelLezerTest, DeSoortenMogenDoorElkaar) {
  EXPECT_EQ(Lees("a\rb\nc\r\nd\n\re"), (Regelrij{"a", "b", "c", "d", "", "e"}));
}

TEST_F(RegelLezerTest, DeLaatsteRegelHeeftGeenEindeNodig) {
  EXPECT_EQ(Lees("a\nb"), (Regelrij{"a", "b"}));
}

TEST_F(RegelLezerTest, LegeRegelsTellen) {
  EXPECT_EQ(Lees("\n\na\n\n"), (Regelrij{"", "", "a", ""}));
  EXPECT_EQ(Lees("\r\r"), (Regelrij{"", ""}));
}

TEST_F(RegelLezerTest, EenLFachterDeLaatsteCRBegintGeenRegel) {
  Open("a\r\n");
  std::string_view regel;
  EXPECT_TRUE(lezer_.Volgende(regel));
  EXPECT_TRUE(lezer_.IsAanEinde());
}

TEST_F(RegelLezerTest, EenByteOrderMarkWordtAlleenVoorDeEersteRegelOvergeslagen) {
  EXPECT_EQ(Lees("\xEF\xBB\xBF"
                 "0 HEAD\n\xEF\xBB\xBF"),
            (Regelrij{"0 HEAD", "\xEF\xBB\xBF"}));
}

TEST_F(RegelLezerTest, EenBestandMetAlleenEenByteOrderMarkIsLeeg) {
  Open("\xEF\xBB\xBF");
  EXPECT_TRUE(lezer_.IsAanEinde());
}

TEST_F(RegelLezerTest, NulBytesZijnTekens) {
  using namespace std::string_literals;
  EXPECT_EQ(Lees("a\0b\n\0"s), (Regelrij{"a\0b"s, "\0"s}));
}

// Line ends of each kind fall at, before and behind the edge of a block.
TEST_F(RegelLezerTest, RegelsLopenOverDeRandVanEenBlok) {
  constexpr std::size_t kBlok = 256 * 1024;
  for (const std::string einde : {"\n", "\r", "\r\n"}) {
    for (std::size_t lengte = kBlok - 3; lengte <= kBlok + 3; ++lengte) {
      const std::string lang(lengte, 'x');
      EXPECT_EQ(Lees(lang + einde + "kort" + einde + einde), (Regelrij{lang, "kort", ""}));
    }
  }
}

TEST_F(RegelLezerTest, RegelsVanEenMegabyte) {
  const std::string a(1 << 20, 'a');
  const std::string b(3 << 20, 'b');
  EXPECT_EQ(Lees(a + "\n" + b + "\rc\r\n" + a), (Regelrij{a, b, "c", a}));
}

TEST_F(RegelLezerTest, VeelKorteRegelsZonderLF) {
  std::string bytes;
  for (int i = 0; i < 200000; ++i) bytes += "x\r";
  EXPECT_EQ(Lees(bytes), Regelrij(200000, "x"));
}

TEST_F(RegelLezerTest, BeginGaatTerugNaarDeEersteRegel) {
  Open(
      "\xEF\xBB\xBF"
      "a\nb\n");
  EXPECT_EQ(Rest(), (Regelrij{"a", "b"}));
  lezer_.Begin();
  EXPECT_EQ(Rest(), (Regelrij{"a", "b"}));
}

TEST_F(RegelLezerTest, EenAnderBestandNeemtDePlaatsVanHetEerste) {
  Open("a\nb\n");
  std::string_view regel;
  EXPECT_TRUE(lezer_.Volgende(regel));
  EXPECT_EQ(Lees("c\n"), (Regelrij{"c"}));
}

TEST_F(RegelLezerTest, EenBestandDatErNietIsWordtNietGevonden) {
  EXPECT_EQ(lezer_.Open(map_.Pad() / "geen.ged").nummer, kBestandNietGevonden);
  std::string_view regel;
  EXPECT_FALSE(lezer_.Volgende(regel));
}

TEST_F(RegelLezerTest, EenMapKanNietWordenGelezen) {
  EXPECT_EQ(lezer_.Open(map_.Pad()).tekst, "Pad is een directory");
}

TEST_F(RegelLezerTest, EenGeslotenLezerIsAanHetEinde) {
  Open("a\n");
  lezer_.Sluit();
  EXPECT_TRUE(lezer_.IsAanEinde());
}

}  // namespace
}  // namespace lb77
