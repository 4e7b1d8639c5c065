#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string_view>

#include "text/Bytes.h"
#include "text/Dos437.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

// What bytes 128 to 255 of the files become.
constexpr std::array<int, 128> kVanDos = {
    199, 252, 233, 226, 228, 224, 229, 231, 234, 235, 232, 239, 238, 236, 196, 197,  // 128
    201, 230, 198, 244, 246, 242, 251, 249, 255, 214, 220, 162, 163, 165, 158, 131,  // 144
    225, 237, 243, 250, 241, 209, 166, 167, 191, 169, 172, 189, 188, 161, 171, 187,  // 160
    176, 177, 178, 179, 180, 181, 182, 183, 184, 185, 186, 187, 188, 189, 190, 191,  // 176
    192, 193, 194, 195, 151, 134, 198, 199, 200, 201, 202, 203, 204, 205, 206, 207,  // 192
    208, 209, 210, 211, 212, 213, 214, 215, 135, 217, 218, 219, 220, 221, 222, 223,  // 208
    224, 223, 226, 227, 228, 229, 181, 231, 232, 233, 234, 235, 236, 248, 238, 239,  // 224
    240, 177, 242, 243, 244, 245, 247, 247, 176, 149, 183, 251, 252, 178, 254, 255,  // 240
};

// What Windows bytes 128 to 255 are stored as.
constexpr std::array<std::string_view, 128> kNaarDos = {
    "C=",   "?",    ",",    "\237", ",,",   "...",  "\305", "\330",  // 128
    "^",    "0/00", "S",    "<",    "OE",   "?",    "Z",    "z",     // 136
    "?",    "'",    "'",    "\"",   "\"",   "\371", "-",    "\304",  // 144
    "~",    "TM",   "s",    ">",    "oe",   "?",    "?",    "Y",     // 152
    " ",    "\255", "\233", "\234", "xo",   "\235", "|",    "$",     // 160
    "\"",   "(C)",  "?",    "\256", "\252", "-",    "(R)",  "-",     // 168
    "\370", "\361", "\375", "3",    "'",    "\346", "q",    "\372",  // 176
    ",",    "1",    "?",    "\257", "\254", "\253", "3/4",  "\250",  // 184
    "`A",   "'A",   "A",    "~A",   "\216", "\217", "\222", "\200",  // 192
    "`E",   "\220", "E",    "E",    "`I",   "'I",   "I",    "I",     // 200
    "-D",   "\245", "`O",   "'O",   "O",    "~O",   "\231", "x",     // 208
    "/O",   "`U",   "'U",   "U",    "\232", "'Y",   "p",    "\341",  // 216
    "\205", "\240", "\203", "~a",   "\204", "\206", "\221", "\207",  // 224
    "\212", "\202", "\210", "\211", "\215", "\241", "\214", "\213",  // 232
    "?",    "\244", "\225", "\242", "\223", "~o",   "\224", "\366",  // 240
    "\355", "\227", "\243", "\226", "\201", "'y",   "?",    "\230",  // 248
};

TEST(DosNaarWindowsTest, GeeftElkeByteBoven127ZijnTeken) {
  for (std::size_t i = 0; i < kVanDos.size(); ++i) {
    EXPECT_EQ(DosNaarWindows(Byte(128 + i)), Byte(static_cast<std::size_t>(kVanDos[i]))) << 128 + i;
  }
}

TEST(DosNaarWindowsTest, LaatBytesOnder128DoorOpDrieNa) {
  for (std::size_t i = 0; i < 128; ++i) {
    if (i == 94 || i == 124 || i == 126) continue;
    EXPECT_EQ(DosNaarWindows(Byte(i)), Byte(i)) << i;
  }
  EXPECT_EQ(DosNaarWindows("^|~"), "\x88\xA6\x98");
}

TEST(DosNaarWindowsTest, LaatOrdinaaltekensEnVasteBlankOngewijzigdDoorAlHeeftWindowsZe) {
  EXPECT_EQ(DosNaarWindows("\xA6\xA7\xFF"), "\xA6\xA7\xFF");
}

TEST(DosNaarWindowsTest, LaatByte158ZonderGelijkeOngewijzigdDoor) {
  EXPECT_EQ(DosNaarWindows("\x9E"), "\x9E");
}

TEST(DosNaarWindowsTest, LeestLijntekensAlsStreepKruisEnDubbelKruis) {
  EXPECT_EQ(DosNaarWindows("\304\305\330\371"), "—†‡•"_w);
}

TEST(DosNaarWindowsTest, LeestPhiAlsOMetSchuineStreep) {
  EXPECT_EQ(DosNaarWindows("S\355ren"), "Søren"_w);
}

TEST(DosNaarWindowsTest, ZetHeleTekstenOm) {
  EXPECT_EQ(DosNaarWindows("Zu\212d-Gel\211"), "Zuèd-Gelë"_w);
  EXPECT_EQ(DosNaarWindows(""), "");
}

TEST(WindowsNaarDosTest, GeeftElkeByteBoven127ZijnBytesOfTerugval) {
  for (std::size_t i = 0; i < kNaarDos.size(); ++i) {
    EXPECT_EQ(WindowsNaarDos(Byte(128 + i)), kNaarDos[i]) << 128 + i;
  }
}

TEST(WindowsNaarDosTest, LaatBytesOnder128Door) {
  for (std::size_t i = 0; i < 128; ++i) EXPECT_EQ(WindowsNaarDos(Byte(i)), Byte(i)) << i;
}

TEST(WindowsNaarDosTest, MaaktVanHetEuroteken80HexTweeTekens) {
  EXPECT_EQ(WindowsNaarDos("\x80"), "C=");
}

TEST(WindowsNaarDosTest, SchrijftPromilleEnCopyrightUit) {
  EXPECT_EQ(WindowsNaarDos("‰©"_w), "0/00(C)");
}

TEST(WindowsNaarDosTest, BewaartOMetSchuineStreepAlsPhiEnKrijgtDieTerug) {
  EXPECT_EQ(WindowsNaarDos("\xF8"), "\xED");
  EXPECT_EQ(DosNaarWindows(WindowsNaarDos("\xF8")), "\xF8");
}

TEST(WindowsNaarDosTest, SchrijftKleineZMetHacekAlsVraagtekenMaar143AlsZ) {
  EXPECT_EQ(WindowsNaarDos("\x9E\x8F\x8E"), "?zZ");
}

}  // namespace
}  // namespace lb77
