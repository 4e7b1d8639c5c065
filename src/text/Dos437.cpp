#include "text/Dos437.h"

#include <array>
#include <cstddef>

#include "text/Letterlijk.h"
#include "text/Omzetting.h"

namespace lb77 {

namespace {

// The bytes of code page 437 whose character Windows-1252 has too and that are taken over.
// Source: IBM's published table of code page 437.
// kept: 166 and 167 (the ordinal signs) and 255 (the hard blank) have an equivalent too, but pass
// unchanged, so that old files read as they always did.
constexpr std::array kGelijkeTekens = {
    Reeks{128, "ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥"_w},
    Reeks{159, "ƒáíóúñÑ"_w},
    Reeks{168, "¿"_w},
    Reeks{170, "¬½¼¡«»"_w},
    Reeks{225, "ß"_w},
    Reeks{230, "µ"_w},
    Reeks{241, "±"_w},
    Reeks{246, "÷"_w},
    Reeks{248, "°"_w},
    Reeks{250, "·"_w},
    Reeks{253, "²"_w},
};

// Deviations, stored byte to Windows byte. The "invalid character value" -1 (it would give 254)
// is no byte and has no row.
constexpr std::array kAfwijkingen = {
    ByteRij{94, 136},   // "^" is stored for the circumflex accent
    ByteRij{124, 166},  // bar to broken bar
    ByteRij{126, 152},  // "~" is stored for the small tilde
    ByteRij{196, 151},  // box line to long dash
    ByteRij{197, 134},  // box cross to dagger
    ByteRij{216, 135},  // box cross to double dagger
    ByteRij{237, 248},  // phi to o with a stroke
    ByteRij{249, 149},  // bullet
};

// Windows bytes for which code page 437 has no character, or another one is wanted.
constexpr std::array kTerugval = {
    TekstRij{128, "C="},
    TekstRij{129, "?"},
    TekstRij{141, "?"},
    TekstRij{144, "?"},
    TekstRij{157, "?"},
    TekstRij{158, "?"},
    TekstRij{170, "?"},
    TekstRij{186, "?"},
    TekstRij{240, "?"},
    TekstRij{254, "?"},
    TekstRij{130, ","},
    TekstRij{184, ","},
    TekstRij{132, ",,"},
    TekstRij{133, "..."},
    TekstRij{134, EnkelTeken(197)},
    TekstRij{135, EnkelTeken(216)},
    TekstRij{136, EnkelTeken(94)},
    TekstRij{137, "0/00"},
    TekstRij{138, "S"},
    TekstRij{139, "<"},
    TekstRij{140, "OE"},
    TekstRij{142, "Z"},
    TekstRij{143, "z"},  // kept: not 158, so that files stay as the older package wrote them
    TekstRij{145, "'"},
    TekstRij{146, "'"},
    TekstRij{180, "'"},
    TekstRij{147, "\""},
    TekstRij{148, "\""},
    TekstRij{168, "\""},
    TekstRij{149, EnkelTeken(249)},
    TekstRij{150, "-"},
    TekstRij{175, "-"},
    TekstRij{151, EnkelTeken(196)},
    TekstRij{152, EnkelTeken(126)},
    TekstRij{153, "TM"},
    TekstRij{154, "s"},
    TekstRij{155, ">"},
    TekstRij{156, "oe"},
    TekstRij{159, "Y"},
    TekstRij{160, " "},
    TekstRij{164, "xo"},
    TekstRij{166, EnkelTeken(124)},
    TekstRij{167, "$"},
    TekstRij{169, "(C)"},
    TekstRij{173, EnkelTeken(45)},
    TekstRij{174, "(R)"},
    TekstRij{179, "3"},
    TekstRij{182, "q"},
    TekstRij{185, "1"},
    TekstRij{190, "3/4"},
    TekstRij{192, "`A"},
    TekstRij{193, "'A"},
    TekstRij{194, "A"},
    TekstRij{195, "~A"},
    TekstRij{200, "`E"},
    TekstRij{202, "E"},
    TekstRij{203, "E"},
    TekstRij{204, "`I"},
    TekstRij{205, "'I"},
    TekstRij{206, "I"},
    TekstRij{207, "I"},
    TekstRij{208, "-D"},
    TekstRij{210, "`O"},
    TekstRij{211, "'O"},
    TekstRij{212, "O"},
    TekstRij{213, "~O"},
    TekstRij{215, "x"},
    TekstRij{216, "/O"},
    TekstRij{217, "`U"},
    TekstRij{218, "'U"},
    TekstRij{219, "U"},
    TekstRij{221, "'Y"},
    TekstRij{222, "p"},
    TekstRij{227, "~a"},
    TekstRij{245, "~o"},
    TekstRij{248, EnkelTeken(237)},
    TekstRij{253, "'y"},
};

consteval ByteTabel MaakVanDos() {
  ByteTabel tabel = OngewijzigdeBytes();
  for (const Reeks& reeks : kGelijkeTekens) {
    for (std::size_t i = 0; i < reeks.tekens.size(); ++i) tabel[reeks.vanaf + i] = reeks.tekens[i];
  }
  for (const ByteRij& rij : kAfwijkingen) tabel[rij.byte] = static_cast<char>(rij.wordt);
  return tabel;
}

consteval TekstTabel MaakNaarDos() {
  TekstTabel tabel = OngewijzigdeTeksten();
  for (const Reeks& reeks : kGelijkeTekens) {
    for (unsigned i = 0; i < reeks.tekens.size(); ++i) {
      tabel[static_cast<unsigned char>(reeks.tekens[i])] = EnkelTeken(reeks.vanaf + i);
    }
  }
  for (const TekstRij& rij : kTerugval) tabel[rij.byte] = rij.wordt;
  return tabel;
}

constexpr ByteTabel kVanDos = MaakVanDos();
constexpr TekstTabel kNaarDos = MaakNaarDos();

}  // namespace

std::string DosNaarWindows(std::string_view dos) {
  std::string uit(dos);
  for (char& teken : uit) teken = kVanDos[static_cast<unsigned char>(teken)];
  return uit;
}

std::string WindowsNaarDos(std::string_view windows) {
  return ZetOm(windows, kNaarDos);
}

}  // namespace lb77
