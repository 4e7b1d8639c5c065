// The fixture of the lists: a file set, and what a walk over it writes.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "output/TekstSchrijver.h"
#include "reporting/RecordBron.h"
#include "reporting/Verloop.h"
#include "steun/ProefSet.h"

namespace lb77 {

class LijstToets : public ::testing::Test {
 protected:
  LijstToets() { set_.schrijfwijze.DatumScheider = '-'; }

  // `schrijf(uit, verloop)` writes the list; its lines, with plain line ends.
  template <class Schrijf>
  std::string Lijst(Schrijf schrijf, Einde einde = Einde::Klaar) {
    TekstSchrijver uit;
    EXPECT_TRUE(uit.Open(set_.map / "LIJST.TMP"));
    uit.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
    EXPECT_TRUE(schrijf(uit, verloop_) == einde);
    EXPECT_TRUE(uit.Sluit());
    std::string tekst = Bytes();
    tekst.erase(std::remove(tekst.begin(), tekst.end(), '\r'), tekst.end());
    return tekst;
  }
  // The last list as it lies in its file.
  [[nodiscard]] std::string Bytes() const { return LeesBytes(set_.map / "LIJST.TMP"); }

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
  RecordBron bron_{set_.opslag};
  int tests_ = 0;    // for a stop
  int stopBij_ = 0;  // the test that gets one; 0 is none
  std::vector<int> getoond_;
  Verloop verloop_{[this] { return ++tests_ == stopBij_; },
                   [this](int, int aantal) { getoond_.push_back(aantal); }};
};

}  // namespace lb77
