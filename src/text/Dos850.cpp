#include "text/Dos850.h"

#include <array>
#include <cstddef>

#include "text/Letterlijk.h"
#include "text/Omzetting.h"

namespace lb77 {

namespace {

// The bytes of code page 850 whose character Windows-1252 has too. Source: IBM's published table
// of code page 850.
constexpr std::array kGelijkeTekens = {
    Reeks{128, "ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒ"_w},
    Reeks{160, "áíóúñÑªº¿®¬½¼¡«»"_w},
    Reeks{181, "ÁÂÀ©"_w},
    Reeks{189, "¢¥"_w},
    Reeks{198, "ãÃ"_w},
    Reeks{207, "¤ðÐÊËÈ"_w},
    Reeks{214, "ÍÎÏ"_w},
    Reeks{221, "¦Ì"_w},
    Reeks{225, "ßÔÒõÕµþÞÚÛÙýÝ¯´"_w},
    Reeks{241, "±"_w},
    Reeks{243, "¾¶§÷¸°¨·¹³²"_w},
};

// Deviations. kept: 224 and 255 have no row and pass unchanged, so that O acute reads as a grave.
// The "invalid value" (it would give 160) is no byte.
constexpr std::array kAfwijkingen = {
    ByteRij{94, 136},  ByteRij{126, 152}, ByteRij{196, 151},
    ByteRij{197, 134}, ByteRij{240, 45},  ByteRij{254, 149},
};

consteval ByteTabel MaakVanDos850() {
  ByteTabel tabel = OngewijzigdeBytes();
  for (const Reeks& reeks : kGelijkeTekens) {
    for (std::size_t i = 0; i < reeks.tekens.size(); ++i) tabel[reeks.vanaf + i] = reeks.tekens[i];
  }
  for (const ByteRij& rij : kAfwijkingen) tabel[rij.byte] = static_cast<char>(rij.wordt);
  return tabel;
}

constexpr ByteTabel kVanDos850 = MaakVanDos850();

}  // namespace

std::string Dos850NaarWindows(std::string_view dos) {
  return ZetOm(dos, kVanDos850);
}

}  // namespace lb77
