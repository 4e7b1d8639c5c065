// Runs the rules of a check over a small set, without a form.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "checks/Controleur.h"
#include "reporting/RecordBron.h"
#include "steun/ProefSet.h"

namespace lb77 {

using Zinnenlijst = std::vector<std::string>;

// A set whose records the rules read; no box may appear.
class ControleToets : public ::testing::Test {
 protected:
  static constexpr ControleKeuzen kAlles{true, true, true, true, true};
  // All options but one, or one alone.
  static constexpr ControleKeuzen Zonder(std::size_t keuze) {
    ControleKeuzen keuzen = kAlles;
    keuzen.at(keuze) = false;
    return keuzen;
  }
  static constexpr ControleKeuzen Alleen(std::size_t keuze) {
    ControleKeuzen keuzen{};
    keuzen.at(keuze) = true;
    return keuzen;
  }

  void TearDown() override { EXPECT_THAT(set_.Getoond(), ::testing::IsEmpty()); }

  // What a whole walk finds.
  static std::vector<Bevinding> Bevindingen(Controleur& regels) {
    std::vector<Bevinding> uit;
    const std::int16_t laatste = regels.Laatste();
    regels.Begin(laatste);
    for (std::int32_t nr = 2; nr <= laatste; ++nr) {
      regels.Toets(static_cast<std::int16_t>(nr), [&](Bevinding een) { uit.push_back(een); });
    }
    return uit;
  }
  template <class Regels>
  Zinnenlijst Regelteksten(const ControleKeuzen& keuzen = kAlles) {
    Regels regels(bron_, keuzen);
    Zinnenlijst uit;
    for (const Bevinding& een : Bevindingen(regels)) uit.push_back(een.tekst);
    return uit;
  }

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
  RecordBron bron_{set_.opslag};
};

}  // namespace lb77
