#include <gtest/gtest.h>

#include <array>
#include <cstddef>

#include "text/Bytes.h"
#include "text/Dos850.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

// What bytes 128 to 255 of code page 850 become.
constexpr std::array<int, 128> kVanDos850 = {
    199, 252, 233, 226, 228, 224, 229, 231, 234, 235, 232, 239, 238, 236, 196, 197,  // 128
    201, 230, 198, 244, 246, 242, 251, 249, 255, 214, 220, 248, 163, 216, 215, 131,  // 144
    225, 237, 243, 250, 241, 209, 170, 186, 191, 174, 172, 189, 188, 161, 171, 187,  // 160
    176, 177, 178, 179, 180, 193, 194, 192, 169, 185, 186, 187, 188, 162, 165, 191,  // 176
    192, 193, 194, 195, 151, 134, 227, 195, 200, 201, 202, 203, 204, 205, 206, 164,  // 192
    240, 208, 202, 203, 200, 213, 205, 206, 207, 217, 218, 219, 220, 166, 204, 223,  // 208
    224, 223, 212, 210, 245, 213, 181, 254, 222, 218, 219, 217, 253, 221, 175, 180,  // 224
    45,  177, 242, 190, 182, 167, 247, 184, 176, 168, 183, 185, 179, 178, 149, 255,  // 240
};

TEST(Dos850NaarWindowsTest, GeeftElkeByteBoven127ZijnTeken) {
  for (std::size_t i = 0; i < kVanDos850.size(); ++i) {
    EXPECT_EQ(Dos850NaarWindows(Byte(128 + i)), Byte(static_cast<std::size_t>(kVanDos850[i])))
        << 128 + i;
  }
}

TEST(Dos850NaarWindowsTest, LaatBytesOnder128DoorOpTweeNa) {
  for (std::size_t i = 0; i < 128; ++i) {
    if (i == 94 || i == 126) continue;
    EXPECT_EQ(Dos850NaarWindows(Byte(i)), Byte(i)) << i;
  }
  EXPECT_EQ(Dos850NaarWindows("^~"), "\x88\x98");
}

TEST(Dos850NaarWindowsTest, LaatByte224En255OngewijzigdDoor) {
  EXPECT_EQ(Dos850NaarWindows("\xE0\xFF"), "\xE0\xFF");
}

TEST(Dos850NaarWindowsTest, MaaktVanHetZachteAfbreekstreepjeEenGewoon) {
  EXPECT_EQ(Dos850NaarWindows("\xF0"), "-");
}

TEST(Dos850NaarWindowsTest, ZetHeleTekstenOm) {
  EXPECT_EQ(Dos850NaarWindows("\265rni, \235re \320"), "Árni, Øre ð"_w);
}

TEST(Dos850NaarWindowsTest, NoemtInDeMeldingAndereCodepaginas) {
  EXPECT_EQ(kDos850Melding,
            "Codepage 860 wordt nog niet ondersteund.\nCodepage 437 wordt gebruikt");
}

}  // namespace
}  // namespace lb77
