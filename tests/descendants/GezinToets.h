// Writes a family sheet without a form.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "descendants/GezinF6.h"
#include "descendants/GezinFamilie.h"
#include "descendants/GezinSchrijver.h"
#include "output/TekstSchrijver.h"
#include "steun/ProefSet.h"

namespace lb77 {

class GezinToets : public ::testing::Test {
 protected:
  GezinToets() {
    set_.schrijfwijze.DatumScheider = '-';
    set_.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
    set_.schrijfwijze.gezindten[2] = "BSburgerlijk";
  }

  // Writes the sheet of the options; it is in uit_ afterwards, with plain line ends.
  Uitslag Schrijf(std::int16_t hoofd, std::int16_t relatie) {
    opties_.GezinHoofdNr = hoofd;
    opties_.HuidigRelatieNr = relatie;
    TekstSchrijver schrijver;
    EXPECT_TRUE(schrijver.Open(set_.map / "uit.txt"));
    const bool f6 = opties_.GezinSoort == BladSoort::F6;
    schrijver.ZetRechterMarge(f6 ? TekstSchrijver::kGeenRechterMarge : breedte_);
    const Gegevens bronnen{set_.Persoon,   set_.Relatie, set_.Plaats,
                           set_.Opmerking, set_.volgers, set_.schrijfwijze};
    const Uitslag uitslag = f6 ? GezinF6(opties_, bronnen, schrijver).Schrijf()
                               : GezinSchrijver(opties_, bronnen, schrijver).Schrijf();
    EXPECT_TRUE(schrijver.Sluit());
    uit_ = LeesBytes(set_.map / "uit.txt");
    uit_.erase(std::remove(uit_.begin(), uit_.end(), '\r'), uit_.end());
    return uitslag;
  }
  // The same, and expects that nothing went wrong.
  const std::string& Blad(std::int16_t hoofd, std::int16_t relatie) {
    EXPECT_EQ(Schrijf(hoofd, relatie), Einde::Klaar);
    return uit_;
  }
  [[nodiscard]] bool Bevat(std::string_view tekst) const {
    return uit_.find(tekst) != std::string::npos;
  }

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
  GezinOpties opties_;
  int breedte_ = 78;
  std::string uit_;
};

}  // namespace lb77
