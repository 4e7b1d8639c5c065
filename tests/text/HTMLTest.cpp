#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string_view>

#include "text/Bytes.h"
#include "text/HTML.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

// What bytes 128 to 255 become.
constexpr std::array<std::string_view, 128> kNaarHTML = {
    "\200",     "\201",     "\202",     "\203",      // 128
    "\204",     "\205",     "\206",     "\207",      // 132
    "\210",     "\211",     "\212",     "\213",      // 136
    "\214",     "\215",     "\216",     "\217",      // 140
    "\220",     "\221",     "\222",     "\223",      // 144
    "\224",     "\225",     "\226",     "\227",      // 148
    "\230",     "\231",     "\232",     "\233",      // 152
    "\234",     "\235",     "\236",     "\237",      // 156
    "\240",     "\241",     "\242",     "\243",      // 160
    "\244",     "\245",     "\246",     "\247",      // 164
    "\250",     "\251",     "\252",     "\253",      // 168
    "\254",     "\255",     "\256",     "\257",      // 172
    "\260",     "\261",     "\262",     "\263",      // 176
    "\264",     "\265",     "\266",     "\267",      // 180
    "\270",     "\271",     "\272",     "\273",      // 184
    "\274",     "\275",     "\276",     "\277",      // 188
    "&Agrave;", "&Aacute;", "&Acirc;",  "&Atilde;",  // 192
    "&Auml;",   "&Aring;",  "&AEgil;",  "&Ccedil;",  // 196
    "&Egrave;", "&Eacute;", "&Ecirc;",  "&Euml;",    // 200
    "&Igrave;", "&Iacute;", "&Icirc;",  "&Iuml;",    // 204
    "\320",     "&Ntilde;", "&Ograve;", "&Oacute;",  // 208
    "&Ocirc;",  "&Otilde;", "&Ouml;",   "\327",      // 212
    "\330",     "&Ugrave;", "&Uacute;", "&Ucirc;",   // 216
    "&Uuml;",   "&Yacute;", "\336",     "&szlig;",   // 220
    "&agrave;", "&aacute;", "&acirc;",  "&atilde;",  // 224
    "&auml;",   "&aring;",  "&aelig;",  "&ccedil;",  // 228
    "&egrave;", "&eacute;", "&ecirc;",  "&euml;",    // 232
    "&igrave;", "&iacute;", "&icirc;",  "&iuml;",    // 236
    "\360",     "&ntilde;", "&ograve;", "&oacute;",  // 240
    "&ocirc;",  "&otilde;", "&ouml;",   "\367",      // 244
    "\370",     "&ugrave;", "&uacut;",  "&ucirc;",   // 248
    "&uuml;",   "&yacute;", "\376",     "&yuml;",    // 252
};

TEST(TekstNaarHTMLTest, GeeftElkeByteBoven127ZijnEntiteit) {
  for (std::size_t i = 0; i < kNaarHTML.size(); ++i) {
    EXPECT_EQ(TekstNaarHTML(Byte(128 + i)), kNaarHTML[i]) << 128 + i;
  }
}

TEST(TekstNaarHTMLTest, LaatBytesOnder128DoorOpVierNa) {
  for (std::size_t i = 0; i < 128; ++i) {
    if (i == 38 || i == 39 || i == 60 || i == 62) continue;
    EXPECT_EQ(TekstNaarHTML(Byte(i)), Byte(i)) << i;
  }
}

TEST(TekstNaarHTMLTest, ZetTekensVanHTMLOm) {
  EXPECT_EQ(TekstNaarHTML("<b>A & B</b>"), "&lt;b&gt;A &amp; B&lt;/b&gt;");
}

TEST(TekstNaarHTMLTest, MaaktVanDeApostrofQuotEnLaatAanhalingstekensDoor) {
  EXPECT_EQ(TekstNaarHTML("'t \"Hof\""), "&quot;t \"Hof\"");
}

TEST(TekstNaarHTMLTest, HoudtDeTweeVerminkteEntiteiten) {
  EXPECT_EQ(TekstNaarHTML("Æú"_w), "&AEgil;&uacut;");
}

TEST(TekstNaarHTMLTest, HeeftVoorAchtTekensGeenEntiteit) {
  EXPECT_EQ(TekstNaarHTML("Ð×ØÞðð÷øþ"_w), "Ð×ØÞðð÷øþ"_w);
}

TEST(TekstNaarHTMLTest, ZetHeleTekstenOm) {
  EXPECT_EQ(TekstNaarHTML("één"_w), "&eacute;&eacute;n");
  EXPECT_EQ(TekstNaarHTML(""), "");
}

}  // namespace
}  // namespace lb77
