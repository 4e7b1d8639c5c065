#include "text/Translitteratie.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text/Letterlijk.h"
#include "text/Omzetting.h"

namespace lb77 {

namespace {

// Words for consecutive code points, one blank between them; "?" is a point without a word.
// Source of the letters: the decompositions and names of the Unicode character database.
struct Woordenreeks {
  char32_t vanaf = 0;
  std::string_view woorden;
};

constexpr std::array kReeksen = {
    // Latin Extended-A
    Woordenreeks{0x0100,
                 "A a A a A a C c C c C c C c D d D d E e E e E e E e E e G g G g "
                 "G g G g H h H h I i I i I i I i I i IJ ij J j K k k L l L l L l L "
                 "l L l N n N n N n 'n N n O o O o O o OE oe R r R r R r S s S s S s "
                 "S s T t T t T t U u U u U u U u U u U u W w Y y Y Z z Z z Z z s"},
    // Latin Extended-B
    Woordenreeks{0x0180,
                 "b B B b ? ? O C c D D D d ? E E E F f G ? hv I I K k l ? M N n O "
                 "O o OI oi P p R ? ? S ? t T t T U u U V Y y Z z Z Z z z ? ? ? ? w "
                 "| || ? ! DZ Dz dz LJ Lj lj NJ Nj nj A a I i O o U u U u U u U u U u e A a "
                 "A a Æ æ G g G g K k O o O o Z z j DZ Dz dz G g HV W N n A a Æ æ Ø ø "
                 "A a A a E e E e I i I i O o O o R r R r U u U u S s T t Y y H h "
                 "N d OU ou Z z A a E e O o O o O o O o Y y l n t j db qp A C c L T s "
                 "z ? ? B U V E e J j Q q R r Y y"_w},
    // Spacing modifier letters that stand for an apostrophe or a quote
    Woordenreeks{0x02B9, "' \" ' ' ' ' '"},
    Woordenreeks{0x02C8, "' ¯ ´ `"_w},
    // Latin Extended Additional
    Woordenreeks{0x1E00,
                 "A a B b B b B b C c D d D d D d D d D d E e E e E e E e E e F f "
                 "G g H h H h H h H h H h I i I i K k K k K k L l L l L l L l M m "
                 "M m M m N n N n N n N n O o O o O o O o P p P p R r R r R r R r "
                 "S s S s S s S s S s T t T t T t T t U u U u U u U u U u V v V v "
                 "W w W w W w W w W w X x X x Y y Z z Z z Z z h t w y a' s s s SS d "
                 "A a A a A a A a A a A a A a A a A a A a A a A a E e E e E e E e "
                 "E e E e E e E e I i I i O o O o O o O o O o O o O o O o O o O o "
                 "O o O o U u U u U u U u U u U u U u Y y Y y Y y Y y LL ll V v Y y"},
    // Dashes and quotes
    Woordenreeks{0x2010, "- - – – — — || _"_w},
    Woordenreeks{0x201B, "‘"_w},
    Woordenreeks{0x201F, "“"_w},
    Woordenreeks{0x2023, "• . .. ? ·"_w},
    Woordenreeks{0x2032, "' \" ''' ` `` ``` ^"},
    Woordenreeks{0x203C, "!! ?!"},
    Woordenreeks{0x2043, "- /"},
    Woordenreeks{0x2047, "?? ?! !?"},
    Woordenreeks{0x204E, "*"},
    Woordenreeks{0x2052, "% ~"},
    // Superscripts and subscripts
    Woordenreeks{0x2070, "0 i ? ? 4 5 6 7 8 9 + - = ( ) n 0 1 2 3 4 5 6 7 8 9 + - = ( )"},
    // Currency and letter-like signs
    Woordenreeks{0x20A3, "Fr £"_w},
    Woordenreeks{0x20A7, "Pts Rs"},
    Woordenreeks{0x2103, "°C ? c/o"_w},
    Woordenreeks{0x2109, "°F"_w},
    Woordenreeks{0x2113, "l ? ? No"},
    Woordenreeks{0x2120, "SM TEL"},
    Woordenreeks{0x212A, "K Å"_w},
    // Fractions and roman numerals
    Woordenreeks{0x2150,
                 "1/7 1/9 1/10 1/3 2/3 1/5 2/5 3/5 4/5 1/6 5/6 1/8 3/8 5/8 7/8 1/ "
                 "I II III IV V VI VII VIII IX X XI XII L C D M "
                 "i ii iii iv v vi vii viii ix x xi xii l c d m"},
    // Arrows and mathematical signs
    Woordenreeks{0x2190, "<- ^ -> v <->"},
    Woordenreeks{0x2212, "- ? ? / ? * ° ·"_w},
    Woordenreeks{0x223C, "~"},
    Woordenreeks{0x2248, "~"},
    Woordenreeks{0x2260, "<>"},
    Woordenreeks{0x2264, "<= >="},
    // Box lines, as the stored text knows them
    Woordenreeks{0x2500, "— — | |"_w},
    // Signs that genealogists use: woman, man, marriage, divorce, death
    Woordenreeks{0x2640, "V ? M"},
    Woordenreeks{0x26AD, "x )("},
    Woordenreeks{0x271D, "† † †"_w},
    // Ligatures
    Woordenreeks{0xFB00, "ff fi fl ffi ffl st st"},
};

// Both ends included.
struct Bereik {
  char32_t van = 0;
  char32_t tot = 0;
};

constexpr std::array kBlanks = {
    Bereik{0x1680, 0x1680}, Bereik{0x2000, 0x200A}, Bereik{0x2028, 0x2029},
    Bereik{0x202F, 0x202F}, Bereik{0x205F, 0x205F}, Bereik{0x3000, 0x3000},
};

// Combining marks, direction and joining marks, variation selectors, byte order mark.
constexpr std::array kZonderBreedte = {
    Bereik{0x0300, 0x036F}, Bereik{0x200B, 0x200F}, Bereik{0x202A, 0x202E},
    Bereik{0x2060, 0x206F}, Bereik{0xFE00, 0xFE0F}, Bereik{0xFEFF, 0xFEFF},
};

// Full-width forms of "!" to "~".
constexpr Bereik kVolleBreedte = {0xFF01, 0xFF5E};
constexpr char32_t kVolleBreedteAfstand = 0xFEE0;

constexpr bool LigtIn(const Bereik& bereik, char32_t codepunt) {
  return codepunt >= bereik.van && codepunt <= bereik.tot;
}

template <std::size_t N>
constexpr bool LigtInEen(const std::array<Bereik, N>& bereiken, char32_t codepunt) {
  for (const Bereik& bereik : bereiken) {
    if (LigtIn(bereik, codepunt)) return true;
  }
  return false;
}

// Calls `neem` with each character that has a word, and the word.
template <class Neem>
consteval void Doorloop(const Neem& neem) {
  for (const Woordenreeks& reeks : kReeksen) {
    char32_t codepunt = reeks.vanaf;
    for (std::size_t begin = 0; begin < reeks.woorden.size(); ++codepunt) {
      std::size_t eind = begin;
      while (eind < reeks.woorden.size() && reeks.woorden[eind] != ' ') ++eind;
      const bool leeg = eind == begin + 1 && reeks.woorden[begin] == '?';
      if (!leeg) neem(codepunt, reeks.woorden.substr(begin, eind - begin));
      begin = eind + 1;
    }
  }
}

consteval std::size_t TelWoorden() {
  std::size_t aantal = 0;
  Doorloop([&aantal](char32_t, std::string_view) { ++aantal; });
  return aantal;
}

struct Woord {
  char32_t codepunt = 0;
  std::string_view woord;
};

// All words, in the order of their characters.
consteval auto MaakWoorden() {
  std::array<Woord, TelWoorden()> woorden{};
  std::size_t plaats = 0;
  Doorloop([&](char32_t codepunt, std::string_view woord) {
    if (plaats > 0 && woorden[plaats - 1].codepunt >= codepunt) throw "the rows are out of order";
    woorden[plaats++] = {codepunt, woord};
  });
  return woorden;
}

constexpr auto kWoorden = MaakWoorden();

}  // namespace

std::optional<std::string_view> Translitteratie(char32_t codepunt) {
  if (LigtInEen(kZonderBreedte, codepunt)) return std::string_view();
  if (LigtInEen(kBlanks, codepunt)) return std::string_view(" ");
  if (LigtIn(kVolleBreedte, codepunt)) return EnkelTeken(codepunt - kVolleBreedteAfstand);
  const auto* const rij = std::ranges::lower_bound(kWoorden, codepunt, {}, &Woord::codepunt);
  if (rij != kWoorden.end() && rij->codepunt == codepunt) return rij->woord;
  return std::nullopt;
}

}  // namespace lb77
