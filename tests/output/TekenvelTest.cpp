#include <gtest/gtest.h>

#include <sstream>

#include "output/Tekenvel.h"
#include "output/TekstSchrijver.h"
#include "steun/TijdelijkeMap.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

using Regels = std::vector<std::string>;

TEST(Tekenvel, IsLeegZolangErNietsOpStaat) {
  const Tekenvel vel;
  EXPECT_EQ(vel.Rijen(), 0);
  EXPECT_EQ(vel.Kolommen(), 0);
  EXPECT_TRUE(vel.Regels().empty());
}

TEST(Tekenvel, GroeitTotWaarErGetekendIs) {
  Tekenvel vel;
  vel.Zet(2, 3, "Jan");
  EXPECT_EQ(vel.Rijen(), 3);
  EXPECT_EQ(vel.Kolommen(), 6);
  EXPECT_EQ(vel.Regels(), (Regels{"", "", "   Jan"}));
}

TEST(Tekenvel, EenTekstBedektWaarHijOpStaat) {
  Tekenvel vel;
  vel.LijnDwars(0, 0, 9);
  vel.Zet(0, 2, "Jan Bos");
  vel.Zet(0, 6, "V");
  EXPECT_EQ(vel.Regels(), (Regels{"--Jan Vos-"}));
}

TEST(Tekenvel, WatVoorKolomNulLigtValtWeg) {
  Tekenvel vel;
  vel.Zet(0, -2, "Jan");
  vel.LijnDwars(1, -3, 1);
  vel.LijnNeer(-1, 0, 5);
  EXPECT_EQ(vel.Regels(), (Regels{"n", "--"}));
}

TEST(Tekenvel, EenLijnGaatOnderEenTekstDoor) {
  Tekenvel vel;
  vel.Zet(0, 2, "Jan");
  vel.LijnDwars(0, 0, 6, '=');
  vel.LijnNeer(3, 0, 1);
  EXPECT_EQ(vel.Regels(), (Regels{"==Jan==", "   |"}));
}

TEST(Tekenvel, WaarLijnenElkaarTreffenStaatEenKnoop) {
  Tekenvel vel;
  vel.LijnDwars(1, 0, 4);
  vel.LijnNeer(2, 0, 2);
  EXPECT_EQ(vel.Regels(), (Regels{"  |", "--+--", "  |"}));
  vel.LijnDwars(1, 0, 4);  // a joint stays one
  EXPECT_EQ(vel.Regels()[1], "--+--");
}

TEST(Tekenvel, DeTekensVanLijnenZijnTeKiezen) {
  Tekenvel vel;
  vel.LijnNeer(1, 0, 2, '!');
  vel.LijnDwars(0, 1, 3, '=');
  EXPECT_EQ(vel.Regels(), (Regels{" +==", " !", " !"}));
}

TEST(Tekenvel, EenLijnMagVanAchterNaarVoren) {
  Tekenvel vel;
  vel.LijnDwars(0, 3, 1);
  vel.LijnNeer(0, 2, 1);
  EXPECT_EQ(vel.Regels(), (Regels{" ---", "|", "|"}));
}

TEST(Tekenvel, EenLijnOverEenLijnNeemtHetLaatsteTeken) {
  Tekenvel vel;
  vel.LijnDwars(0, 0, 3);
  vel.LijnDwars(0, 2, 5, '=');
  EXPECT_EQ(vel.Regels(), (Regels{"--===="}));
}

TEST(Tekenvel, BlancoAanHetEindeStaatErNiet) {
  Tekenvel vel;
  vel.Zet(0, 0, "Jan   ");
  EXPECT_EQ(vel.Regels(), (Regels{"Jan"}));
}

TEST(Tekenvel, EenMerkNeemtGeenPlaatsEnStaatAlleenInHTML) {
  Tekenvel vel;
  vel.Merk(0, 4, "</A>");
  vel.Zet(0, 0, "IIIa Jan");
  vel.Merk(0, 0, "<A NAME=\"IIIa\">");
  EXPECT_EQ(vel.Regels(), (Regels{"IIIa Jan"}));
  EXPECT_EQ(vel.Regels(true), (Regels{"<A NAME=\"IIIa\">IIIa</A> Jan"}));
}

TEST(Tekenvel, MerkenOpEenPlaatsHoudenHunVolgorde) {
  Tekenvel vel;
  vel.Zet(0, 0, "Jan");
  vel.Merk(0, 3, "</B>");
  vel.Merk(0, 3, "</A>");
  vel.Merk(0, 9, "<!>");  // behind the last character
  vel.Merk(0, -1, "<B>");
  EXPECT_EQ(vel.Regels(true), (Regels{"<B>Jan</B></A><!>"}));
}

TEST(Tekenvel, HTMLWordtGecodeerdMaarMerkenNiet) {
  Tekenvel vel;
  vel.Zet(0, 0, "<René & Bos>"_w);
  vel.Merk(0, 6, "<B>");
  EXPECT_EQ(vel.Regels(), (Regels{std::string("<René & Bos>"_w)}));
  EXPECT_EQ(vel.Regels(true), (Regels{"&lt;Ren&eacute; <B>&amp; Bos&gt;"}));
}

class TekenvelBestand : public ::testing::Test {
 protected:
  std::string Geschreven(bool inHTML) {
    TekstSchrijver uit;
    EXPECT_TRUE(uit.Open(map_ / "uit.txt"));
    uit.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
    uit.ZetHTML(inHTML);
    vel_.Schrijf(uit);
    EXPECT_TRUE(uit.Sluit());
    return LeesBytes(map_ / "uit.txt");
  }

  TijdelijkeMap map_;
  Tekenvel vel_;
};

TEST_F(TekenvelBestand, GaatRegelVoorRegelNaarDeSchrijver) {
  vel_.Zet(0, 4, "/=== Jan & Piet");
  vel_.Zet(2, 0, "==+");
  vel_.Merk(2, 0, "<A NAME=\"I\"></A>");
  EXPECT_EQ(Geschreven(false), "    /=== Jan & Piet\r\n\r\n==+\r\n");
  EXPECT_EQ(Geschreven(true), "    /=== Jan &amp; Piet\r\n\r\n<A NAME=\"I\"></A>==+\r\n");
}

TEST_F(TekenvelBestand, GaatAlsTekstNaarEenStroom) {
  vel_.Zet(1, 1, "Jan & Piet");
  vel_.Merk(1, 1, "<B>");
  std::ostringstream uit;
  vel_.Schrijf(uit);
  EXPECT_EQ(uit.str(), "\r\n Jan & Piet\r\n");
}

// Father, proband and mother, the columns three apart.
TEST(Tekenvel, TekentEenBoom) {
  Tekenvel vel;
  vel.Zet(2, 0, "I");
  vel.LijnNeer(3, 0, 4);
  vel.LijnDwars(2, 1, 3);
  vel.LijnDwars(0, 3, 5);
  vel.LijnDwars(4, 3, 5);
  vel.Zet(0, 6, "2. Vader");
  vel.Zet(4, 6, "3. Moeder");
  EXPECT_EQ(vel.Regels(), (Regels{"   +--2. Vader", "   |", "I--+", "   |", "   +--3. Moeder"}));
}

}  // namespace
}  // namespace lb77
