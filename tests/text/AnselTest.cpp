#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "text/Ansel.h"
#include "text/Bytes.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

// What Windows bytes 128 to 255 are written as.
constexpr std::array<std::string_view, 128> kNaarAnsel = {
    "\200",  "\201",  "\202",  "\203",  "\204",  "\205",  "\206",  "\207",   // 128
    "\210",  "\211",  "\351S", "\213",  "\246",  "\215",  "\216",  "\217",   // 136
    "\220",  "\221",  "\222",  "\223",  "\267",  "\225",  "\226",  "\227",   // 144
    "\230",  "\231",  "\351s", "\233",  "\266",  "\235",  "\236",  "\350Y",  // 152
    "\240",  "\306",  "\242",  "\271",  "\244",  "\245",  "\246",  "\247",   // 160
    "\250",  "\303",  "\252",  "\253",  "\254",  "\255",  "\252",  "\257",   // 168
    "\300",  "\253",  "\262",  "\263",  "\264",  "\265",  "\266",  "\250",   // 176
    "\270",  "\271",  "\300",  "\273",  "\274",  "\275",  "\276",  "\305",   // 184
    "\341A", "\342A", "\343A", "\344A", "\350A", "\352A", "\245",  "\360C",  // 192
    "\341E", "\342E", "\343E", "\350E", "\341I", "\342I", "\343I", "\350I",  // 200
    "\243",  "\344N", "\341O", "\342O", "\343O", "\344O", "\350O", "\327",   // 208
    "\242",  "\341U", "\342U", "\343U", "\350U", "\342Y", "\244",  "\317",   // 216
    "\341a", "\342a", "\343a", "\344a", "\350a", "\352a", "\265",  "\360c",  // 224
    "\341e", "\342e", "\343e", "\350e", "\341i", "\342i", "\343i", "\350i",  // 232
    "\263",  "\344n", "\341o", "\342o", "\343o", "\344o", "\350o", "\367",   // 240
    "\262",  "\341u", "\342u", "\343u", "\350u", "\342y", "\264",  "\350y",  // 248
};

// What ANSEL bytes 128 to 223 are read as.
constexpr std::array<std::string_view, 96> kVanAnsel = {
    "\200",    "\201",    "\202",    "\203",    "\204",    "\205",    "\206",    "\207",     // 128
    "\210",    "\211",    "\212",    "\213",    "\214",    "\215",    "\216",    "\217",     // 136
    "\220",    "\221",    "\222",    "\223",    "\224",    "\225",    "\226",    "\227",     // 144
    "\230",    "\231",    "\232",    "\233",    "\234",    "\235",    "\236",    "\237",     // 152
    "\240",    "-L",      "\330",    "\320",    "\336",    "\306",    "\214",    "'",        // 160
    "\267",    "b",       "\256",    "\261",    "O'",      "U'",      "\270",    "?_175_?",  // 168
    "`",       "-l",      "\370",    "\360",    "\376",    "\346",    "\234",    "\224",     // 176
    "i",       "\243",    "\376",    "?_187_?", "o'",      "u'",      "?_190_?", "?_191_?",  // 184
    "\272",    "l",       "(p)",     "\251",    "#",       "\277",    "\241",    "?_199_?",  // 192
    "?_200_?", "?_201_?", "?_202_?", "?_203_?", "?_204_?", "?_205_?", "?_206_?", "\337",     // 200
    "?_208_?", "?_209_?", "?_210_?", "?_211_?", "?_212_?", "?_213_?", "?_214_?", "?_215_?",  // 208
    "?_216_?", "?_217_?", "?_218_?", "?_219_?", "?_220_?", "?_221_?", "?_222_?", "?_223_?",  // 216
};

// What the marks, 224 to 255, are read as when nothing stands behind them; "" for all others.
struct LosMerk {
  std::size_t byte = 0;
  std::string_view tekst;
};
constexpr std::array kLosseMerken = {
    LosMerk{229, "\345"},
    LosMerk{230, "<breve>"},
    LosMerk{231, "<dot_above>"},
    LosMerk{233, "<hacek>"},
    LosMerk{238, "\356"},
    LosMerk{239, "<candrabindu>"},
    LosMerk{241, "<ogonek>"},
    LosMerk{242, "<dot_below>"},
    LosMerk{243, "<double_dot_below>"},
    LosMerk{244, "<ring_below>"},
    LosMerk{245, "<double_underscore>"},
    LosMerk{246, "\366"},
    LosMerk{248, "<right_cedilla>"},
    LosMerk{249, "<breve_below>"},
    LosMerk{250, "<double_tilde_l>"},
    LosMerk{251, "<double_tilde_r>"},
    LosMerk{252, "?_252_?"},
    LosMerk{253, "?_253_?"},
    LosMerk{255, "?_255_?"},
};

TEST(WindowsNaarAnselTest, GeeftElkeByteBoven127ZijnBytes) {
  for (std::size_t i = 0; i < kNaarAnsel.size(); ++i) {
    EXPECT_EQ(WindowsNaarAnsel(Byte(128 + i)), kNaarAnsel[i]) << 128 + i;
  }
}

TEST(WindowsNaarAnselTest, LaatBytesOnder128Door) {
  for (std::size_t i = 0; i < 128; ++i) EXPECT_EQ(WindowsNaarAnsel(Byte(i)), Byte(i)) << i;
}

TEST(WindowsNaarAnselTest, ElkeLetterKomtTerugZoalsZijWas) {
  for (std::size_t byte = 128; byte < 256; ++byte) {
    const std::string letter = Byte(byte);
    const bool isLetter = byte >= 192 && byte != 215 && byte != 247;
    if (!isLetter) continue;
    EXPECT_EQ(AnselNaarWindows(WindowsNaarAnsel(letter)), letter) << byte;
  }
  EXPECT_EQ(AnselNaarWindows(WindowsNaarAnsel("ŠšŒœŸŽž"_w)), "ŠšŒœŸŽž"_w);
}

// Its hacek would come back as a word.
TEST(WindowsNaarAnselTest, LaatZMetHacekDoor) {
  EXPECT_EQ(WindowsNaarAnsel("Žž"_w), "Žž"_w);
}

TEST(WindowsNaarAnselTest, ZetHetMerkVoorDeLetter) {
  EXPECT_EQ(WindowsNaarAnsel("één #1/2"_w), "\342e\342en #1/2");
  EXPECT_EQ(WindowsNaarAnsel("Šárka"_w), "\351S\342arka");
}

TEST(AnselNaarWindowsTest, GeeftElkeByteVan128Tot223ZijnTekst) {
  for (std::size_t i = 0; i < kVanAnsel.size(); ++i) {
    EXPECT_EQ(AnselNaarWindows(Byte(128 + i)), kVanAnsel[i]) << 128 + i;
  }
}

TEST(AnselNaarWindowsTest, GeeftElkLosMerkZijnTekstOfLaatHetVallen) {
  for (std::size_t byte = 224; byte < 256; ++byte) {
    std::string_view verwacht;
    for (const LosMerk& los : kLosseMerken) {
      if (los.byte == byte) verwacht = los.tekst;
    }
    EXPECT_EQ(AnselNaarWindows(Byte(byte)), verwacht) << byte;
  }
}

TEST(AnselNaarWindowsTest, LaatBytesOnder128DoorOpTweeMerkenNa) {
  for (std::size_t i = 0; i < 128; ++i) {
    const bool merk = i == 94 || i == 126;
    EXPECT_EQ(AnselNaarWindows(Byte(i)), merk ? "" : Byte(i)) << i;
  }
}

TEST(AnselNaarWindowsTest, MaaktEenNietToegekendeByteZichtbaar) {
  EXPECT_EQ(AnselNaarWindows("a\257b"), "a?_175_?b");
}

// The letters that each mark makes of "AEIOUYNCaeiouync"; "." stands for the bare letter.
struct MerkGeval {
  std::string_view merken;
  std::string_view gevormd;
};

constexpr std::string_view kKaal = "AEIOUYNCaeiouync";
constexpr std::array kMerken = {
    MerkGeval{"\341\354", "ÀÈÌÒÙ...àèìòù..."_w},
    MerkGeval{"\340\342\353\355\376", "ÁÉÍÓÚÝ..áéíóúý.."_w},
    MerkGeval{"\343^", "ÂÊÎÔÛ...âêîôû..."_w},
    MerkGeval{"\344~", "Ã..Õ..Ñ.ã..õ..ñ."_w},
    MerkGeval{"\350", "ÄËÏÖÜŸ..äëïöüÿ.."_w},
    MerkGeval{"\352", "Å.......å......."_w},
    MerkGeval{"\360\367", ".......Ç.......ç"_w},
};

TEST(AnselNaarWindowsTest, VoegtElkMerkSamenMetDeLettersDieHetDragen) {
  for (const MerkGeval& geval : kMerken) {
    for (const char merk : geval.merken) {
      for (std::size_t i = 0; i < kKaal.size(); ++i) {
        const char verwacht = geval.gevormd[i] == '.' ? kKaal[i] : geval.gevormd[i];
        EXPECT_EQ(AnselNaarWindows(std::string{merk, kKaal[i]}), std::string(1, verwacht))
            << static_cast<int>(static_cast<unsigned char>(merk)) << ' ' << kKaal[i];
      }
    }
  }
}

TEST(AnselNaarWindowsTest, VoegtHacekAlleenMetSSamen) {
  EXPECT_EQ(AnselNaarWindows("\351s\351S"), "\x9A\x8A");
  EXPECT_EQ(AnselNaarWindows("Dvo\351rak \351z"), "Dvo<hacek>rak <hacek>z");
}

TEST(AnselNaarWindowsTest, LaatEenLetterZonderZulkeSamenvoegingAlleenStaan) {
  EXPECT_EQ(AnselNaarWindows("\342g\350x"), "gx");
}

TEST(AnselNaarWindowsTest, LaatEenMerkVoorIetsAndersDanEenLetterVallen) {
  EXPECT_EQ(AnselNaarWindows("\3421 ^/ ~"), "1 / ");
  EXPECT_EQ(AnselNaarWindows("\342\262"), "ø"_w);
}

TEST(AnselNaarWindowsTest, LaatDeNaamVanEenHacekStaanVoorWatGeenSIs) {
  EXPECT_EQ(AnselNaarWindows("Dvo\351 rak"), "Dvo<hacek> rak");
  EXPECT_EQ(AnselNaarWindows("\351-\3511"), "<hacek>-<hacek>1");
  EXPECT_EQ(AnselNaarWindows("Dvo\351"), "Dvo<hacek>");
}

TEST(AnselNaarWindowsTest, LeestEenMerkAchterEenMerkOpZichzelf) {
  EXPECT_EQ(AnselNaarWindows("\342\350o"), "ö"_w);
}

TEST(AnselNaarWindowsTest, LaatDeNaamVanEenMerkZonderLettersInDeTekst) {
  EXPECT_EQ(AnselNaarWindows("\346g\361a"), "<breve>g<ogonek>a");
}

TEST(AnselNaarWindowsTest, LaatEenMerkZonderRijOngewijzigdDoor) {
  EXPECT_EQ(AnselNaarWindows("\345a\356o\366u"), "\345a\356o\366u");
}

TEST(AnselNaarWindowsTest, KrijgtElkeLetterMetAccentTerug) {
  const std::string_view letters =
      "ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÑÒÓÔÕÖÙÚÛÜÝàáâãäåçèéêëìíîïñòóôõöùúûüýÿŠšŒœ¡£©®±·º¿"_w;
  EXPECT_EQ(AnselNaarWindows(WindowsNaarAnsel(letters)), letters);
}

}  // namespace
}  // namespace lb77
