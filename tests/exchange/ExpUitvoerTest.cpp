#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "exchange/ExpUitvoer.h"
#include "exchange/FaalUitvoer.h"
#include "steun/SpeelToets.h"
#include "steun/TijdelijkeMap.h"
#include "steun/VolleSchijf.h"

namespace lb77 {
namespace {

using namespace std::string_view_literals;

class ExpUitvoerToets : public ::testing::Test {
 protected:
  std::string Inhoud() const { return LeesBytes(Pad()); }
  std::filesystem::path Pad() const { return map_.Pad() / "UIT.GED"; }

  TijdelijkeMap map_;
  ExpBestand uit_;
};

TEST_F(ExpUitvoerToets, RegelsEindigenOpCRenLF) {
  ASSERT_FALSE(uit_.Open(Pad()));
  uit_.Regel("een");
  uit_.Regel("");
  uit_.Regel("twee ");
  EXPECT_FALSE(uit_.Sluit());
  EXPECT_EQ(Inhoud(), "een\r\n\r\ntwee \r\n");
}

TEST_F(ExpUitvoerToets, EenTeLangeNaamWordtZoGenoemd) {
  EXPECT_EQ(uit_.Open(map_.Pad() / std::string(300, 'x')).tekst, "Bestandsnaam te lang");
}

#ifndef _WIN32
// Opening it would wait for who reads it.
TEST_F(ExpUitvoerToets, EenPijpIsGeenBestand) {
  ASSERT_EQ(::mkfifo(Pad().c_str(), 0600), 0);
  EXPECT_EQ(uit_.Open(Pad()).tekst, "Pad is geen gewoon bestand");
  EXPECT_TRUE(std::filesystem::is_fifo(Pad()));
}
#endif

TEST_F(ExpUitvoerToets, EenStuurtekenWordtEenSpatie) {
  ASSERT_FALSE(uit_.Open(Pad()));
  uit_.Regel("a\r\nb\0c\td\x1F \x20\x7F\xFF"sv);
  EXPECT_FALSE(uit_.Sluit());
  EXPECT_EQ(Inhoud(), "a  b c d   \x7F\xFF\r\n");
}

// Wherever it stands in a line of any length, and whatever stands before it.
TEST_F(ExpUitvoerToets, EenStuurtekenWordtOveralGevonden) {
  for (std::size_t lengte = 1; lengte < 20; ++lengte) {
    for (std::size_t plek = 0; plek < lengte; ++plek) {
      for (const char teken : {'\0', '\x01', '\x1F', '\x20', '\x7F', '\x80', '\xFF'}) {
        for (const char vulling : {'a', '\x20', '\xFF'}) {
          std::string regel(lengte, vulling);
          regel[plek] = teken;
          FaalUitvoer uit;
          uit.Regel(regel);
          if (static_cast<unsigned char>(teken) < 32) regel[plek] = ' ';
          ASSERT_EQ(uit.Regels(), regel + "\n");
        }
      }
    }
  }
}

TEST_F(ExpUitvoerToets, TussenKolommenBlijftEenTab) {
  ASSERT_FALSE(uit_.Open(Pad()));
  uit_.Kolommen("a\tb\nc\t");
  EXPECT_FALSE(uit_.Sluit());
  EXPECT_EQ(Inhoud(), "a\tb c\t\r\n");
  EXPECT_EQ(ZonderStuurtekens("a\tb\x01"), "a b ");
}

TEST_F(ExpUitvoerToets, EenBestandDatErIsWordtVervangen) {
  std::ofstream(Pad()) << "veel langer dan wat ervoor in de plaats komt";
  ASSERT_FALSE(uit_.Open(Pad()));
  uit_.Regel("nieuw");
  EXPECT_FALSE(uit_.Sluit());
  EXPECT_EQ(Inhoud(), "nieuw\r\n");
}

TEST_F(ExpUitvoerToets, WatGeschrevenWasStaatErZonderSluiten) {
  {
    ExpBestand uit;
    ASSERT_FALSE(uit.Open(Pad()));
    uit.Regel("halverwege");
  }
  EXPECT_EQ(Inhoud(), "halverwege\r\n");
}

TEST_F(ExpUitvoerToets, MeerDanEenBlokKomtHeelAan) {
  ASSERT_FALSE(uit_.Open(Pad()));
  std::string alles;
  for (int i = 0; i < 20000; ++i) {
    const std::string regel = "regel " + std::to_string(i);
    uit_.Regel(regel);
    alles += regel + "\r\n";
  }
  EXPECT_FALSE(uit_.Sluit());
  EXPECT_TRUE(Inhoud() == alles);
}

TEST_F(ExpUitvoerToets, WatGeenBestandKanWordenIsEenFout) {
  EXPECT_EQ(uit_.Open(map_.Pad()).tekst, "Pad is een directory");
  EXPECT_EQ(uit_.Open(map_.Pad() / "WEG" / "UIT.GED").nummer, kBestandNietGevonden);
  EXPECT_FALSE(uit_.Sluit());
}

TEST_F(ExpUitvoerToets, EenVolleSchijfBlijktTijdensHetSchrijven) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  ASSERT_FALSE(uit_.Open(Pad()));
  const VolleSchijf schijf(100000);
  int regels = 0;
  while (!uit_.Fout() && regels < 100000) {
    uit_.Regel("een regel van zesentwintig");
    ++regels;
  }
  EXPECT_EQ(uit_.Fout().tekst, "Bestand te groot");
  EXPECT_LT(regels, 10000);
  EXPECT_EQ(uit_.Sluit().tekst, "Bestand te groot");
  EXPECT_GT(std::filesystem::file_size(Pad()), 60000U);
}

TEST_F(ExpUitvoerToets, EenVolleSchijfBlijktOokBijHetSluiten) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  ASSERT_FALSE(uit_.Open(Pad()));
  const VolleSchijf schijf(3);
  uit_.Regel("meer dan drie");
  EXPECT_FALSE(uit_.Fout());
  EXPECT_EQ(uit_.Sluit().nummer, kSchijfVol);
  EXPECT_EQ(uit_.Fout().nummer, kSchijfVol);
}

TEST_F(ExpUitvoerToets, NaEenFoutKomtErNietsMeerBij) {
  FaalUitvoer uit(2);
  uit.Regel("een");
  uit.Regel("twee");
  EXPECT_FALSE(uit.Fout());
  uit.Regel("drie");
  EXPECT_EQ(uit.Fout().tekst, "Schijf vol");
  uit.Regel("vier");
  uit.Kolommen("vijf");
  EXPECT_EQ(uit.Regels(), "een\ntwee\n");
}

}  // namespace
}  // namespace lb77
