#include "text/Merken.h"

#include <array>

#include "text/Accenten.h"

namespace lb77 {

namespace {

// A combining mark of Unicode and its letters.
struct Samenvoeging {
  char32_t merk = 0;
  const Accentletters& letters;
};

constexpr std::array kSamenvoegingen = {
    Samenvoeging{0x0300, kGravis}, Samenvoeging{0x0301, kAcutus}, Samenvoeging{0x0302, kCircumflex},
    Samenvoeging{0x0303, kTilde},  Samenvoeging{0x0308, kUmlaut}, Samenvoeging{0x030A, kRing},
    Samenvoeging{0x030C, kHacekS}, Samenvoeging{0x030C, kHacekZ}, Samenvoeging{0x0327, kCedille},
};

}  // namespace

bool ZetMerkOpLetter(std::string& uit, char32_t merk) {
  // In the order of the rows.
  if (merk < kSamenvoegingen.front().merk || merk > kSamenvoegingen.back().merk) return false;
  if (uit.empty()) return false;
  for (const Samenvoeging& rij : kSamenvoegingen) {
    if (rij.merk != merk) continue;
    if (const auto gevormd = rij.letters.Met(uit.back())) {
      uit.back() = *gevormd;
      return true;
    }
  }
  return false;
}

}  // namespace lb77
