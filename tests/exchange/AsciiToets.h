// A file set, a selection, and the fixed-width lines of its records taken apart.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "exchange/AsciiSchrijver.h"
#include "exchange/FaalUitvoer.h"
#include "steun/ProefSet.h"

namespace lb77 {

// The fields of a line in their order, each with its width.
using AsciiVorm = std::vector<std::pair<std::string, std::size_t>>;

inline AsciiVorm AsciiPersoonVorm() {
  return {{"nr", 5},      {"geslacht", 1}, {"voor", 30},    {"achter", 25}, {"gebcorr", 1},
          {"geb", 8},     {"gebnr", 5},    {"gebte", 25},   {"doop", 8},    {"doopnr", 5},
          {"doopte", 25}, {"religie", 40}, {"ovlcorr", 1},  {"ovl", 8},     {"ovlnr", 5},
          {"ovlte", 25},  {"soort", 1},    {"begr", 8},     {"begrnr", 5},  {"begrte", 25},
          {"beroep", 30}, {"ouders", 5},   {"relaties", 25}};
}
inline AsciiVorm AsciiRelatieVorm() {
  return {{"nr", 5},      {"man", 5},     {"vrouw", 5}, {"kinderen", 145}, {"otr", 8},
          {"otrnr", 5},   {"otrte", 25},  {"corr", 1},  {"huw", 8},        {"huwnr", 5},
          {"huwte", 25},  {"kind", 40},   {"sch", 1},   {"kerk", 8},       {"kerknr", 5},
          {"kerkte", 25}, {"religie", 40}};
}

class AsciiToets : public ::testing::Test {
 protected:
  AsciiToets() {
    set_.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
    set_.schrijfwijze.gezindten[2] = "RK" + std::string(45, 'k');
  }

  BouwFamilie& Bouw() { return set_.bouw; }
  void KiesPersonen(std::initializer_list<std::int16_t> nummers) {
    for (const std::int16_t nr : nummers) EXPECT_TRUE(selectie_.SelPersonen.Voeg(nr));
  }
  void KiesRelaties(std::initializer_list<std::int16_t> nummers) {
    for (const std::int16_t nr : nummers) EXPECT_TRUE(selectie_.SelRelaties.Voeg(nr));
  }

  // The writer, on the remarks as they are when it is first asked for.
  AsciiSchrijver& Schrijver() {
    if (!schrijver_) {
      schrijver_.emplace(AsciiBronnen{{set_.Persoon, set_.Relatie, set_.Plaats, set_.Opmerking,
                                       set_.volgers, set_.schrijfwijze},
                                      selectie_,
                                      set_.gesprek,
                                      personen_,
                                      relaties_,
                                      opmerkingen_,
                                      log_});
    }
    return *schrijver_;
  }
  // The fields of one record's line.
  std::map<std::string, std::string> Persoon(std::int16_t nr) {
    Schrijver().Persoon(nr);
    return Ontleed(personen_.Neem(), AsciiPersoonVorm());
  }
  std::map<std::string, std::string> Relatie(std::int16_t nr) {
    Schrijver().Relatie(nr);
    return Ontleed(relaties_.Neem(), AsciiRelatieVorm());
  }

  ProefSet set_;
  ExpSelectie selectie_;
  FaalUitvoer personen_;
  FaalUitvoer relaties_;
  FaalUitvoer opmerkingen_;
  FaalUitvoer log_;

 private:
  static std::map<std::string, std::string> Ontleed(const std::string& regel,
                                                    const AsciiVorm& vorm) {
    std::map<std::string, std::string> uit;
    std::size_t plek = 0;
    for (const auto& [naam, breedte] : vorm) {
      uit[naam] = plek <= regel.size() ? regel.substr(plek, breedte) : std::string("kort");
      plek += breedte;
    }
    EXPECT_EQ(regel.size(), plek + 1) << regel;
    EXPECT_EQ(regel.find('\n'), plek) << regel;
    return uit;
  }

  std::optional<AsciiSchrijver> schrijver_;
};

}  // namespace lb77
