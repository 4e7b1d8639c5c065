// Computes a descendant table without a form.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "descendants/GenBouwer.h"
#include "steun/ProefSet.h"

namespace lb77 {

class GenToets : public ::testing::Test {
 protected:
  // All lines of a stamouder, or what the options say.
  Uitslag Bouw(std::int16_t stamouder) {
    opties_.GenStamouderNr = stamouder;
    return BouwGen(tabel_, opties_, set_.Persoon, set_.Relatie, set_.volgers, verloop_);
  }
  // All entries: the column GenPersoon.
  [[nodiscard]] std::vector<int> Personen() const {
    std::vector<int> uit;
    for (int i = 0; i < tabel_.GenAantal(); ++i) uit.push_back(tabel_.GenPersoon(i));
    return uit;
  }
  [[nodiscard]] std::vector<std::string> Labels() const {
    std::vector<std::string> uit;
    for (int i = 0; i < tabel_.GenAantal(); ++i) uit.push_back(tabel_.Label(i));
    return uit;
  }

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
  GenTabel tabel_;
  GenOpties opties_;
  Verloop verloop_{[] { return false; }, [](int, int) {}};
};

}  // namespace lb77
