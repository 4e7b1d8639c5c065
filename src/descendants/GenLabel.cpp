#include "descendants/GenLabel.h"

#include <cstddef>
#include <cstdint>

#include "text/Namen.h"
#include "text/RomeinsGetal.h"

namespace lb77 {
namespace {

constexpr int kLetters = 26;
constexpr std::size_t kRomeinsBreedte = 6;

std::string Letters(int volgNr) {
  std::string uit;
  for (int rest = volgNr; rest > 0; rest = (rest - 1) / kLetters) {
    uit.insert(uit.begin(), static_cast<char>('a' + (rest - 1) % kLetters));
  }
  return uit;
}

}  // namespace

std::string GenLabel(int generatie, int volgNr, bool uitgelijnd) {
  const std::string romeins = RomeinsGetal(static_cast<std::int16_t>(generatie));
  return (uitgelijnd ? Rechts(romeins, kRomeinsBreedte) : romeins) + Letters(volgNr);
}

}  // namespace lb77
