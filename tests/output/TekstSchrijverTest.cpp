#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "output/TekstSchrijver.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

class TekstSchrijverTest : public ::testing::Test {
 protected:
  TekstSchrijverTest() {
    schrijver_.ZetRechterMarge(20);
    EXPECT_TRUE(schrijver_.Open(pad_));
  }
  // Closes, and gives what the file holds.
  std::string Uit() {
    EXPECT_TRUE(schrijver_.Sluit());
    return LeesBytes(map_ / "uit.txt");
  }

  TijdelijkeMap map_;
  std::filesystem::path pad_ = map_ / "uit.txt";
  TekstSchrijver schrijver_;
};

TEST_F(TekstSchrijverTest, EenTagIsStilInTekst) {
  EXPECT_FALSE(schrijver_.InHTML());
  schrijver_.Tag("<BR>");
  schrijver_.TagRegel("<TABLE>");
  schrijver_.Vast("Jan");
  schrijver_.ZetHTML(true);
  schrijver_.Tag("<BR>");
  schrijver_.TagRegel("<HR>");
  EXPECT_EQ(Uit(), "Jan<BR><HR>\r\n");
}

// Step 1: a held word at or left of the margin.

TEST_F(TekstSchrijverTest, EenWachtwoordLinksVanDeMargeKomtAanDeMarge) {
  schrijver_.Tekst("een twee");
  schrijver_.ZetMarge(true, 8);
  schrijver_.Tekst("drie");
  EXPECT_EQ(schrijver_.HuidigeKolom(), 12) << "the word itself does not count";
  EXPECT_EQ(Uit(), "een     tweedrie");
}

TEST_F(TekstSchrijverTest, AanHetBeginVanEenRegelHoeftGeenBlanco) {
  schrijver_.Tekst("een");
  EXPECT_EQ(Uit(), "een");
}

TEST_F(TekstSchrijverTest, AchterEenNummerLinksVanDeMargeKomtGeenBlanco) {
  schrijver_.ZetMarge(true, 4);
  schrijver_.Vast("12");
  schrijver_.ZetMarge(true, 8);
  schrijver_.Tekst("Jan");
  EXPECT_EQ(Uit(), "    12  Jan");
}

// Step 3: ending a line.

TEST_F(TekstSchrijverTest, EenLegeTekstEindigtDeRegelNaHetWachtwoord) {
  schrijver_.Tekst("een twee");
  schrijver_.EindeRegel();
  EXPECT_EQ(schrijver_.HuidigeKolom(), 0);
  EXPECT_EQ(Uit(), "een twee\r\n");
}

TEST_F(TekstSchrijverTest, EenWachtwoordDatJuistPastBlijftOpZijnRegel) {
  schrijver_.Tekst("aaaaaaaaaaaaaa bbbbb");  // 14, a blank and 5 fill the 20
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "aaaaaaaaaaaaaa bbbbb\r\n");
}

TEST_F(TekstSchrijverTest, EenWachtwoordDatNietPastKrijgtEenEigenRegel) {
  schrijver_.Tekst("aaaaaaaaaaaaaaa bbbbb");
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "aaaaaaaaaaaaaaa\r\nbbbbb\r\n");
}

TEST_F(TekstSchrijverTest, DieRegelHeeftDeMargeVanDeVorigeAanroep) {
  schrijver_.ZetMarge(true, 4);
  schrijver_.Tekst("aaaaaaaaaaaa bbbbb");
  schrijver_.ZetMarge(false, -4);
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "    aaaaaaaaaaaa\r\n    bbbbb\r\n");
}

TEST_F(TekstSchrijverTest, TweeRegeleindenLatenEenLegeRegel) {
  schrijver_.Tekst("een");
  schrijver_.EindeRegel();
  schrijver_.LegeRegel();
  schrijver_.Tekst("twee");
  EXPECT_EQ(Uit(), "een\r\n\r\ntwee");
}

// Step 4: what stands between two texts.

TEST_F(TekstSchrijverTest, TekstVolgtEenWachtwoordNaEenBlanco) {
  schrijver_.Tekst("een twee");
  schrijver_.Tekst("drie");
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "een twee drie\r\n");
}

TEST_F(TekstSchrijverTest, VasteTekstKleeftAanHetWachtwoord) {
  schrijver_.Tekst("een twee");
  schrijver_.Vast(",");
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "een twee,\r\n");
}

TEST_F(TekstSchrijverTest, TekstVolgtGeschrevenTekstNaEenBlanco) {
  schrijver_.Tekst("een");
  schrijver_.Tekst("twee");
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "een twee\r\n");
}

TEST_F(TekstSchrijverTest, VasteTekstKleeftAanGeschrevenTekst) {
  schrijver_.Tekst("een");
  schrijver_.Vast(".");
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "een.\r\n");
}

// Step 5: the word held back.

TEST_F(TekstSchrijverTest, HetLaatsteWoordWacht) {
  schrijver_.Tekst("een twee");
  EXPECT_EQ(Uit(), "een");
}

TEST_F(TekstSchrijverTest, VasteTekstDieOpEenBlancoEindigtHoudtNietsTerug) {
  schrijver_.Vast("een twee ");
  EXPECT_EQ(Uit(), "een twee ");
}

TEST_F(TekstSchrijverTest, LosseTekstDieOpEenBlancoEindigtLaatZijnWoordLos) {
  schrijver_.Tekst("een");
  schrijver_.Tekst("twee ");
  EXPECT_EQ(Uit(), "een twee");
}

TEST_F(TekstSchrijverTest, EenEnkeleBlancoLaatHetWachtwoordLosEnStaatErachter) {
  schrijver_.Tekst("een twee");
  schrijver_.Tekst(" ");
  schrijver_.Vast("Jan");
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "een twee Jan\r\n");
}

TEST_F(TekstSchrijverTest, EenTekstMetRegeleindeHoudtNietsTerug) {
  schrijver_.TekstUit("een twee", true, false);
  schrijver_.Tekst("drie");
  EXPECT_EQ(Uit(), "een twee\r\ndrie");
}

// Step 6: the indent.

TEST_F(TekstSchrijverTest, TekstBegintAanDeLinkermarge) {
  schrijver_.ZetMarge(true, 3);
  schrijver_.VolleRegel("een");
  EXPECT_EQ(Uit(), "   een\r\n");
}

// Step 7: wrapping.

TEST_F(TekstSchrijverTest, EenLangeTekstBreektBijDeLaatsteBlancoDiePast) {
  schrijver_.ZetMarge(true, 2);
  schrijver_.VolleRegel("een twee drie vier vijf zes");
  EXPECT_EQ(Uit(), "  een twee drie\r\n  vier vijf zes\r\n");
}

TEST_F(TekstSchrijverTest, EenBlancoJuistAchterDeRuimteWordtNietGevonden) {
  schrijver_.ZetRechterMarge(10);
  schrijver_.VolleRegel("aaa bbbbbb ccc");
  EXPECT_EQ(Uit(), "aaa\r\nbbbbbb ccc\r\n");
}

TEST_F(TekstSchrijverTest, EenTekstDieDeRuimteVultWordtNietGebroken) {
  schrijver_.ZetRechterMarge(10);
  schrijver_.VolleRegel("aaaa bbbbb");
  EXPECT_EQ(Uit(), "aaaa bbbbb\r\n");
}

TEST_F(TekstSchrijverTest, EenWoordLangerDanDeRegelBreektHardAanDeLinkermarge) {
  schrijver_.ZetRechterMarge(10);
  schrijver_.ZetMarge(true, 2);
  schrijver_.VolleRegel("abcdefghijklmnopqrst");
  EXPECT_EQ(Uit(), "  abcdefgh\r\n  ijklmnop\r\n  qrst\r\n");
}

TEST_F(TekstSchrijverTest, EenWoordDatNietPastGaatHeelNaarDeVolgendeRegel) {
  schrijver_.ZetMarge(true, 2);
  schrijver_.Vast("1234567890");
  schrijver_.TekstUit("abcdefghijkl", true, false);
  EXPECT_EQ(Uit(), "  1234567890\r\n  abcdefghijkl\r\n");
}

TEST_F(TekstSchrijverTest, EenVastWoordZonderBlancoGaatOokHeel) {
  schrijver_.Vast("123456789012345");
  schrijver_.VolleRegel("abcdefghijkl");
  EXPECT_EQ(Uit(), "123456789012345\r\nabcdefghijkl\r\n");
}

TEST_F(TekstSchrijverTest, LosseTekstAanDeMargeVerliestBlancoVooraan) {
  schrijver_.TekstUit("   een", true, false);
  EXPECT_EQ(Uit(), "een\r\n");
}

TEST_F(TekstSchrijverTest, VasteTekstAanDeMargeHoudtBlancoVooraan) {
  schrijver_.VolleRegel("   een");
  EXPECT_EQ(Uit(), "   een\r\n");
}

TEST_F(TekstSchrijverTest, EenAchternaamEnZijnKommaBlijvenSamenAanHetEindeVanEenRegel) {
  schrijver_.Tekst("Jan Pieter Willem");
  schrijver_.Tekst("Bos");  // 17 + 1 + 3 passes 20 with the comma
  schrijver_.Vast(", geb.");
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "Jan Pieter Willem\r\nBos, geb.\r\n");
}

TEST_F(TekstSchrijverTest, EenWachtwoordKomtNaEenOmslagAanDeMarge) {
  schrijver_.ZetRechterMarge(10);
  schrijver_.ZetMarge(true, 2);
  schrijver_.Tekst("aaaa bbbbbbbb cc");
  schrijver_.EindeRegel();
  EXPECT_EQ(Uit(), "  aaaa\r\n  bbbbbbbb\r\n  cc\r\n");
}

// Margins.

TEST_F(TekstSchrijverTest, EenMargeIsAbsoluutOfRelatief) {
  schrijver_.ZetMarge(true, 5);
  schrijver_.ZetMarge(false, 3);
  EXPECT_EQ(schrijver_.LinkerMarge(), 8);
  schrijver_.ZetMarge(false, -6);
  EXPECT_EQ(schrijver_.LinkerMarge(), 2);
  schrijver_.ZetMarge(true, 0);
  EXPECT_EQ(schrijver_.LinkerMarge(), 0);
}

TEST_F(TekstSchrijverTest, EenBreedteDieOntbreektIsDeGewone) {
  schrijver_.ZetRechterMarge(0);
  EXPECT_EQ(schrijver_.RechterMarge(), 80);
  schrijver_.ZetRechterMarge(-3);
  EXPECT_EQ(schrijver_.RechterMarge(), 80);
}

TEST_F(TekstSchrijverTest, EenMargeAchterDeRechterLaatTochTienTekens) {
  schrijver_.ZetMarge(true, 25);
  schrijver_.VolleRegel("abcdefghijklmno pqr");
  const std::string wit(25, ' ');
  EXPECT_EQ(Uit(), wit + "abcdefghij\r\n" + wit + "klmno pqr\r\n");
}

TEST_F(TekstSchrijverTest, UitvoerZonderOmslagHeeftTochEenBreedte) {
  schrijver_.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
  const std::string lang(5000, 'x');
  schrijver_.VolleRegel(lang + " " + lang.substr(1));
  EXPECT_EQ(Uit(), lang + "\r\n" + lang.substr(1) + "\r\n");
}

// The file.

TEST_F(TekstSchrijverTest, OpnieuwOpenenBegintOpnieuw) {
  schrijver_.ZetMarge(true, 4);
  schrijver_.Tekst("een twee");
  ASSERT_TRUE(schrijver_.Sluit());
  ASSERT_TRUE(schrijver_.Open(pad_));
  schrijver_.VolleRegel("drie");
  EXPECT_EQ(Uit(), "drie\r\n");
}

TEST_F(TekstSchrijverTest, EenAfgebrokenLoopLaatWatHijSchreef) {
  {
    TekstSchrijver ander;
    ASSERT_TRUE(ander.Open(map_ / "ander.txt"));
    ander.VolleRegel("half");
  }
  EXPECT_EQ(LeesBytes(map_ / "ander.txt"), "half\r\n");
}

TEST_F(TekstSchrijverTest, EenBestandDatNietGemaaktKanWordenZegtWaarom) {
  TekstSchrijver ander;
  EXPECT_FALSE(ander.Open(map_ / "geen" / "uit.txt"));
  EXPECT_EQ(ander.Fout().tekst, "Bestand niet gevonden");
  EXPECT_FALSE(ander.Open(map_.Pad()));
  EXPECT_EQ(ander.Fout().tekst, "Pad is een directory");
  EXPECT_FALSE(ander.Open(map_ / std::string(300, 'x')));
  EXPECT_EQ(ander.Fout().tekst, "Bestandsnaam te lang");
}

TEST_F(TekstSchrijverTest, EenVolleSchijfBlijktAanHetEinde) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
  TekstSchrijver vol;
  ASSERT_TRUE(vol.Open("/dev/full"));
  vol.VolleRegel("tekst");
  EXPECT_FALSE(vol.Mislukt());
  EXPECT_FALSE(vol.Sluit());
  EXPECT_TRUE(vol.Mislukt());
  EXPECT_EQ(vol.Fout().nummer, kSchijfVol);
}

TEST_F(TekstSchrijverTest, EenVolleSchijfBlijktTijdensEenLangeLoop) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
  TekstSchrijver vol;
  ASSERT_TRUE(vol.Open("/dev/full"));
  for (int i = 0; i < 100000 && !vol.Mislukt(); ++i) vol.VolleRegel("een hele regel tekst");
  EXPECT_TRUE(vol.Mislukt());
  EXPECT_FALSE(vol.Sluit());
  EXPECT_EQ(vol.Fout().nummer, kSchijfVol);
}

// Whatever is called with whatever margins: it ends, and no character is lost or moved.
TEST_F(TekstSchrijverTest, GeenAanroepVerliestBijEnigeMargeEenTeken) {
  std::mt19937 toeval(77);
  const auto tot = [&toeval](unsigned n) { return static_cast<int>(toeval() % n); };
  std::string verwacht;
  for (int i = 0; i < 20000; ++i) {
    if (tot(10) == 0) schrijver_.ZetRechterMarge(tot(40) - 5);
    if (tot(10) == 0) schrijver_.ZetMarge(true, tot(30));
    if (tot(10) == 0) schrijver_.ZetMarge(false, tot(9) - 4);
    std::string tekst(static_cast<std::size_t>(tot(30)), ' ');
    for (char& teken : tekst) {
      if (tot(5) != 0) teken = static_cast<char>('a' + tot(26));
    }
    verwacht += tekst;
    schrijver_.TekstUit(tekst, tot(4) == 0, tot(2) == 0);
  }
  schrijver_.EindeRegel();
  std::string uit = Uit();
  const auto wit = [](char teken) { return teken == ' ' || teken == '\r' || teken == '\n'; };
  std::erase_if(uit, wit);
  std::erase_if(verwacht, wit);
  EXPECT_EQ(uit, verwacht);
}

}  // namespace
}  // namespace lb77
