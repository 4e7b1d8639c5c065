#include "text/Ansel.h"

#include <array>
#include <cstddef>

#include "text/Accenten.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"
#include "text/Omzetting.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

// One accent: the bytes that mark it (the first is the one that is written), and its letters.
// Source of the marks: ANSI Z39.47.
struct Accent {
  std::string_view merken;
  const Accentletters& letters;
  std::string_view naam;  // left in the text when the letter has no such combination
};

// kept: hacek combines with "s" alone; before anything else it leaves its name.
constexpr std::array kAccenten = {
    Accent{"\xE1\xEC", kGravis, ""},              // 225, 236
    Accent{"\xE2\xE0\xEB\xED\xFE", kAcutus, ""},  // 226, 224, 235, 237, 254
    Accent{"\xE3^", kCircumflex, ""},             // 227, 94
    Accent{"\xE4~", kTilde, ""},                  // 228, 126
    Accent{"\xE8", kUmlaut, ""},                  // 232
    Accent{"\xEA", kRing, ""},                    // 234
    Accent{"\xF0\xF7", kCedille, ""},             // 240, 247
    Accent{"\xE9", kHacekS, "<hacek>"},           // 233
};

// Windows bytes that have one ANSEL byte. What is not here and has no accent passes unchanged.
constexpr std::array kNaarAnselRijen = {
    ByteRij{140, 166}, ByteRij{148, 183}, ByteRij{156, 182}, ByteRij{161, 198}, ByteRij{163, 185},
    ByteRij{169, 195}, ByteRij{174, 170}, ByteRij{176, 192}, ByteRij{177, 171}, ByteRij{183, 168},
    ByteRij{186, 192}, ByteRij{191, 197}, ByteRij{198, 165}, ByteRij{208, 163}, ByteRij{216, 162},
    ByteRij{222, 164}, ByteRij{223, 207}, ByteRij{230, 181}, ByteRij{240, 179}, ByteRij{248, 178},
    ByteRij{254, 180},
};

// ANSEL's spacing characters, and the marks that no letter of Windows-1252 can carry.
constexpr std::array kVanAnselRijen = {
    TekstRij{161, "-L"},
    TekstRij{162, "Ø"_w},
    TekstRij{163, "Ð"_w},
    TekstRij{164, "Þ"_w},
    TekstRij{165, "Æ"_w},
    TekstRij{166, "Œ"_w},
    TekstRij{167, "'"},
    TekstRij{168, "·"_w},
    TekstRij{169, "b"},
    TekstRij{170, "®"_w},
    TekstRij{171, "±"_w},
    TekstRij{172, "O'"},
    TekstRij{173, "U'"},
    TekstRij{174, "¸"_w},
    TekstRij{176, "`"},
    TekstRij{177, "-l"},
    TekstRij{178, "ø"_w},
    TekstRij{179, "ð"_w},
    TekstRij{180, "þ"_w},
    TekstRij{181, "æ"_w},
    TekstRij{182, "œ"_w},
    TekstRij{183, "”"_w},
    TekstRij{184, "i"},
    TekstRij{185, "£"_w},
    TekstRij{186, "þ"_w},
    TekstRij{188, "o'"},
    TekstRij{189, "u'"},
    TekstRij{192, "º"_w},
    TekstRij{193, "l"},
    TekstRij{194, "(p)"},
    TekstRij{195, "©"_w},
    TekstRij{196, "#"},
    TekstRij{197, "¿"_w},
    TekstRij{198, "¡"_w},
    TekstRij{207, "ß"_w},
    TekstRij{230, "<breve>"},
    TekstRij{231, "<dot_above>"},
    TekstRij{239, "<candrabindu>"},
    TekstRij{241, "<ogonek>"},
    TekstRij{242, "<dot_below>"},
    TekstRij{243, "<double_dot_below>"},
    TekstRij{244, "<ring_below>"},
    TekstRij{245, "<double_underscore>"},
    TekstRij{248, "<right_cedilla>"},
    TekstRij{249, "<breve_below>"},
    TekstRij{250, "<double_tilde_l>"},
    TekstRij{251, "<double_tilde_r>"},
};

// Bytes to which ANSEL assigns nothing, as ranges with both ends included.
struct Bereik {
  unsigned van = 0;
  unsigned tot = 0;
};
constexpr std::array kNietToegekend = {
    Bereik{175, 175}, Bereik{187, 187}, Bereik{190, 191}, Bereik{199, 206},
    Bereik{208, 223}, Bereik{252, 253}, Bereik{255, 255},
};

// One Windows character in ANSEL: a mark (or NUL for none) and the character behind it.
struct Gemerkt {
  char merk = '\0';
  char teken = '\0';
};

consteval std::array<Gemerkt, 256> MaakNaarAnsel() {
  std::array<Gemerkt, 256> tabel{};
  for (std::size_t i = 0; i < tabel.size(); ++i) tabel[i].teken = static_cast<char>(i);
  for (const ByteRij& rij : kNaarAnselRijen) tabel[rij.byte].teken = static_cast<char>(rij.wordt);
  for (const Accent& accent : kAccenten) {
    const auto& [letters, kaal] = accent.letters;
    for (std::size_t i = 0; i < letters.size(); ++i) {
      tabel[static_cast<unsigned char>(letters[i])] = {accent.merken.front(), kaal[i]};
    }
  }
  return tabel;
}

// An empty text stands for a byte that is not assigned.
consteval TekstTabel MaakVanAnsel() {
  TekstTabel tabel = OngewijzigdeTeksten();
  for (const TekstRij& rij : kVanAnselRijen) tabel[rij.byte] = rij.wordt;
  for (const Bereik& bereik : kNietToegekend) {
    for (unsigned byte = bereik.van; byte <= bereik.tot; ++byte) tabel[byte] = {};
  }
  return tabel;
}

// The accent that a byte marks; null for a byte that is no mark.
consteval std::array<const Accent*, 256> MaakAccentVan() {
  std::array<const Accent*, 256> tabel{};
  for (const Accent& accent : kAccenten) {
    for (const char merk : accent.merken) tabel[static_cast<unsigned char>(merk)] = &accent;
  }
  return tabel;
}

constexpr std::array<Gemerkt, 256> kNaarAnsel = MaakNaarAnsel();
constexpr TekstTabel kVanAnsel = MaakVanAnsel();
constexpr std::array<const Accent*, 256> kAccentVan = MaakAccentVan();

bool IsKaleLetter(char teken) {
  return static_cast<unsigned char>(teken) < 128 && IsLetter(teken);
}

void VoegMetAccent(const Accent& accent, char letter, std::string& uit) {
  if (const auto gevormd = accent.letters.Met(letter)) {
    uit += *gevormd;
  } else {
    uit.append(accent.naam) += letter;
  }
}

void VoegLos(unsigned char byte, std::string& uit) {
  if (!kVanAnsel[byte].empty()) {
    uit += kVanAnsel[byte];
  } else {
    uit += "?_" + GetalTekst(byte) + "_?";
  }
}

}  // namespace

std::string WindowsNaarAnsel(std::string_view windows) {
  std::string uit;
  for (const char teken : windows) {
    const Gemerkt& gemerkt = kNaarAnsel[static_cast<unsigned char>(teken)];
    if (gemerkt.merk != '\0') uit += gemerkt.merk;
    uit += gemerkt.teken;
  }
  return uit;
}

std::string AnselNaarWindows(std::string_view ansel) {
  std::string uit;
  uit.reserve(ansel.size());
  for (std::size_t i = 0; i < ansel.size(); ++i) {
    const auto byte = static_cast<unsigned char>(ansel[i]);
    const Accent* const accent = kAccentVan[byte];
    if (accent == nullptr) {
      VoegLos(byte, uit);
    } else if (i + 1 < ansel.size() && IsKaleLetter(ansel[i + 1])) {
      VoegMetAccent(*accent, ansel[++i], uit);
    } else {
      uit += accent->naam;  // what follows carries no accent
    }
  }
  return uit;
}

}  // namespace lb77
