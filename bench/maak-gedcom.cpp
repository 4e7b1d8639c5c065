// lb77-maak-gedcom: writes a made-up GEDCOM file.
#include <charconv>
#include <cstdint>
#include <exception>
#include <iostream>
#include <optional>
#include <string_view>

#include "GedcomMaker.h"

namespace {

constexpr int kVerkeerdGebruik = 2;
constexpr int kMeeste = 1000000;

template <class Getal>
std::optional<Getal> Lees(std::string_view tekst) {
  Getal getal{};
  const auto [eind, fout] = std::from_chars(tekst.data(), tekst.data() + tekst.size(), getal);
  if (fout != std::errc() || eind != tekst.data() + tekst.size()) return std::nullopt;
  return getal;
}

}  // namespace

int main(int argc, char** argv) {
  const auto personen = argc == 5 ? Lees<int>(argv[2]) : std::nullopt;
  const auto gezinnen = argc == 5 ? Lees<int>(argv[3]) : std::nullopt;
  const auto zaad = argc == 5 ? Lees<std::uint64_t>(argv[4]) : std::nullopt;
  if (!personen || !gezinnen || !zaad || *personen < 1 || *personen > kMeeste || *gezinnen < 0 ||
      *gezinnen > *personen) {
    std::cerr << "gebruik: lb77-maak-gedcom BESTAND PERSONEN GEZINNEN ZAAD\n";
    return kVerkeerdGebruik;
  }
  try {
    lb77::bench::MaakGedcom(argv[1], *personen, *gezinnen, *zaad);
  } catch (const std::exception& fout) {
    std::cerr << "lb77-maak-gedcom: " << fout.what() << '\n';
    return 1;
  }
  return 0;
}
