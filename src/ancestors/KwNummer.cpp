#include "ancestors/KwNummer.h"

#include <algorithm>

#include "text/Tekens.h"

namespace lb77 {

bool KwNrGroterGelijk(std::string_view a, std::string_view b) {
  const std::string_view links = Trim(a);
  const std::string_view rechts = Trim(b);
  const std::size_t lengte = std::max(links.size(), rechts.size());
  const auto teken = [lengte](std::string_view s, std::size_t i) {
    const std::size_t voor = lengte - s.size();
    return i < voor ? ' ' : s[i - voor];
  };
  for (std::size_t i = 0; i < lengte; ++i) {
    if (teken(links, i) != teken(rechts, i)) return teken(links, i) > teken(rechts, i);
  }
  return true;
}

std::string KwNrDubbel(std::string_view s, int bit) {
  const std::string_view cijfers = Trim(s);
  std::string uit(cijfers.size() + 1, ' ');
  int over = bit;
  for (std::size_t i = cijfers.size(); i-- > 0;) {
    const int waarde = 2 * (cijfers[i] - '0') + over;
    uit[i + 1] = static_cast<char>('0' + waarde % 10);
    over = waarde < 10 ? 0 : 1;
  }
  if (over == 1) uit[0] = '1';
  return std::string(Trim(uit));
}

int KwNrGeneratie(std::string_view s) {
  int generatie = 0;
  for (std::string grens = "1"; KwNrGroterGelijk(s, grens); grens = KwNrDubbel(grens, 0)) {
    ++generatie;
  }
  return generatie;
}

std::string KwNrSchoon(std::string_view s) {
  std::string_view schoon = Trim(s);
  while (schoon.size() > 1 && schoon.front() == '0') schoon.remove_prefix(1);
  return std::string(schoon);
}

std::string KindLetter(int plaats) {
  if (plaats <= 26) return std::string(1, static_cast<char>('a' + plaats - 1));
  return std::string("a") + static_cast<char>('a' + plaats - 27);
}

Kwartiernummer Kwartiernummer::Kind() const {
  std::string half;
  int rest = 0;
  for (const char cijfer : tekst_) {
    const int waarde = rest * 10 + (cijfer - '0');
    half += static_cast<char>('0' + waarde / 2);
    rest = waarde % 2;
  }
  return Kwartiernummer(half);
}

}  // namespace lb77
