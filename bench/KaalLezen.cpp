#include "KaalLezen.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <string>
#include <string_view>

namespace lb77::bench {
namespace {

// Takes the text up to the first blank, and that blank, off the front.
std::string_view NeemWoord(std::string_view& rest) {
  const std::size_t eind = std::min(rest.find(' '), rest.size());
  const std::string_view woord = rest.substr(0, eind);
  rest.remove_prefix(std::min(eind + 1, rest.size()));
  return woord;
}

}  // namespace

Kaal LeesKaal(const std::filesystem::path& pad) {
  Kaal kaal;
  std::ifstream bestand(pad, std::ios::binary);
  std::string regel;
  while (std::getline(bestand, regel)) {
    std::string_view rest = regel;
    const std::string_view niveauTekst = NeemWoord(rest);
    std::size_t niveau = 0;
    std::from_chars(niveauTekst.data(), niveauTekst.data() + niveauTekst.size(), niveau);
    ++kaal.regels;
    kaal.niveaus += niveau;
    kaal.tags += NeemWoord(rest).size();
    kaal.waarden += rest.size();
  }
  return kaal;
}

std::size_t LeesRegels(const std::filesystem::path& pad) {
  std::size_t tekens = 0;
  std::ifstream bestand(pad, std::ios::binary);
  std::string regel;
  while (std::getline(bestand, regel)) tekens += regel.size();
  return tekens;
}

}  // namespace lb77::bench
