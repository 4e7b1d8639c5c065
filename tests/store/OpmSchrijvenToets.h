// A person and a relation whose remarks are edited as the dialog does it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"
#include "store/OpmLB77.h"

namespace lb77 {

struct OpmSchrijvenToets : ::testing::Test {
  OpmSchrijvenToets() {
    man = set.bouw.Man("Jan", "Jansen");
    relatie = set.bouw.Relatie(man, 0);
  }
  using Boxen = std::vector<std::string>;

  ~OpmSchrijvenToets() override { EXPECT_EQ(set.Getoond(), Boxen{}); }

  static OpmRegels Regels(const std::vector<std::string>& regels) {
    OpmRegels tien;
    std::copy(regels.begin(), regels.end(), tien.begin());
    return tien;
  }
  // Edits the `opmerking`-th remark (from 1) of a rubric of the person, as the dialog does.
  bool Wijzig(std::int16_t rubriek, const std::vector<std::string>& regels, int opmerking = 1,
              std::int16_t prog = 23) {
    EXPECT_TRUE(set.Persoon.Lees(man));
    OpmRecnrs recnrs{};
    std::int16_t vorige = 0;
    for (std::size_t i = 0; i < recnrs.size(); ++i) {
      const auto regel = static_cast<std::int16_t>((opmerking - 1) * 10 + static_cast<int>(i) + 1);
      const OpmVindplaats plek = set.Opmerking.OpmRecordNr(
          set.Persoon.OpmCode(), set.Persoon.OpmRecord(), rubriek, regel, false);
      recnrs[i] = plek.Nr;
      if (i == 0) vorige = plek.Vorige;
    }
    return set.Opmerking.SchrijfOpmerking(Regels(regels), recnrs, vorige, man, 0,
                                          set.Persoon.OpmRecord(), prog, rubriek);
  }
  std::vector<std::string> Teksten(std::int16_t rubriek, int opmerking = 1) {
    EXPECT_TRUE(set.Persoon.Lees(man));
    std::vector<std::string> teksten;
    for (int regel = 1; regel <= 10; ++regel) {
      const auto nr = static_cast<std::int16_t>((opmerking - 1) * 10 + regel);
      teksten.push_back(set.Opmerking.OpmerkingTekst(set.Persoon.OpmCode(), set.Persoon.OpmRecord(),
                                                     rubriek, nr, false));
      if (teksten.back().empty()) {
        teksten.pop_back();
        break;
      }
    }
    return teksten;
  }
  std::pair<int, int> Eigenaar() {
    EXPECT_TRUE(set.Persoon.Lees(man));
    return {set.Persoon.OpmRecord(), set.Persoon.OpmCode()};
  }
  // Records, in use, first that may be free.
  std::array<int, 3> Admin() {
    EXPECT_TRUE(set.Opmerking.LeesAdmin());
    return {set.Opmerking.Rubriek(), set.Opmerking.BijRecord(), set.Opmerking.BijProg()};
  }
  OpmLB77& Lees(std::int16_t nr) {
    set.volgers.HuidigOpmNr = nr;
    EXPECT_TRUE(set.Opmerking.Lees());
    return set.Opmerking;
  }
  void ZetAdmin(std::int16_t aantal, std::int16_t vrij, std::int16_t gebruikt) {
    EXPECT_TRUE(set.Opmerking.LeesAdmin());
    EXPECT_TRUE(set.Opmerking.SchrijfAdm(aantal, vrij, gebruikt));
  }

  Storing storing;
  ProefSet set{FalendeOpener(storing)};
  std::int16_t man = 0;
  std::int16_t relatie = 0;
};

}  // namespace lb77
