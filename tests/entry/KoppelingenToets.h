// A set of which the links are told as text, and the routines that change them.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "entry/Koppelingen.h"
#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"

namespace lb77 {

class KoppelingenToets : public ::testing::Test {
 protected:
  using Regels = std::vector<std::string>;

  // Men 2 to `aantal` + 1.
  void Personen(int aantal);
  // A relation of nobody with that many children, from person `eerste` on; the children themselves
  // are not linked.
  std::int16_t RelatieMet(int kinderen, std::int16_t eerste = 2);
  // Relations of that person alone; the relations themselves name nobody.
  void GeefRelaties(std::int16_t persoon, int aantal);

  // Each relation record: "2: 4 5 6", "3 Z: 18" for a continuation, "4 M2 V3:" with its partners.
  // Slots behind the last that is used are left out.
  Regels Relaties();
  // Each person who has relations: "2: 2 3 -9", "9 Z: 4 5".
  Regels Huwelijken();
  Regels Boxen() { return set_.Getoond(); }
  Koppelingen Werk() { return {set_.Persoon, set_.Relatie, set_.volgers, set_.gesprek}; }

  Storing storing_;
  ProefSet set_{FalendeOpener(storing_)};
};

inline constexpr std::string_view kGeen = "";

}  // namespace lb77
