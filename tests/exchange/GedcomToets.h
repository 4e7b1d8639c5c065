// The lines that the prescribed GEDCOM file has of one record.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>

#include "exchange/FaalUitvoer.h"
#include "exchange/GedcomSchrijver.h"
#include "steun/ProefSet.h"

namespace lb77 {

class GedcomToets : public ::testing::Test {
 protected:
  GedcomToets() {
    set_.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
    set_.schrijfwijze.gezindten[2] = "RKRooms Katholiek";
    set_.schrijfwijze.gezindten[3] = "GHGeref. \xE9\xE9n";
  }

  BouwFamilie& Bouw() { return set_.bouw; }
  void KiesPersonen(std::initializer_list<std::int16_t> nummers) {
    for (const std::int16_t nr : nummers) EXPECT_TRUE(selectie_.SelPersonen.Voeg(nr));
  }
  void KiesRelaties(std::initializer_list<std::int16_t> nummers) {
    for (const std::int16_t nr : nummers) EXPECT_TRUE(selectie_.SelRelaties.Voeg(nr));
  }

  // The writer, on the records as they are when it is first asked for.
  GedcomSchrijver& Schrijver() {
    if (!schrijver_) {
      schrijver_.emplace(GedBronnen{{set_.Persoon, set_.Relatie, set_.Plaats, set_.Opmerking,
                                     set_.volgers, set_.schrijfwijze},
                                    selectie_,
                                    set_.gesprek,
                                    uit_,
                                    log_},
                         kop_);
    }
    return *schrijver_;
  }
  // The lines below the first one of a record, each ended by a line feed.
  std::string Persoon(std::int16_t nr) {
    Schrijver().Persoon(nr);
    return ZonderEerste(uit_.Neem(), "0 @I" + std::to_string(nr) + "@ INDI\n");
  }
  std::string Relatie(std::int16_t nr) {
    Schrijver().Relatie(nr);
    return ZonderEerste(uit_.Neem(), "0 @F" + std::to_string(nr) + "@ FAM\n");
  }

  ProefSet set_;
  ExpSelectie selectie_;
  GedKopGegevens kop_{.nu = {2026, 11, 2, 9, 5, 7}, .bestandsnaam = "UIT.GED", .set = "PROEF"};
  FaalUitvoer uit_;
  FaalUitvoer log_;

 private:
  static std::string ZonderEerste(const std::string& regels, const std::string& eerste) {
    EXPECT_TRUE(regels.starts_with(eerste)) << regels;
    return regels.substr(std::min(regels.size(), eerste.size()));
  }

  std::optional<GedcomSchrijver> schrijver_;
};

}  // namespace lb77
