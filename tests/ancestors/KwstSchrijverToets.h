// Computes and writes an ancestor report without a form.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "ancestors/KwstFamilie.h"
#include "ancestors/KwstSchrijver.h"
#include "output/TekstSchrijver.h"
#include "steun/ProefSet.h"

namespace lb77 {

class KwstSchrijverToets : public ::testing::Test {
 protected:
  KwstSchrijverToets() { set_.schrijfwijze.gezindten[1] = "NHNederlands Hervormd"; }

  Uitslag Bereken(std::int16_t proband) {
    opties_.KwProbandNr = proband;
    return BouwKwst(tabel_, opties_, set_.Persoon, set_.Relatie, set_.volgers, verloop_);
  }
  // Computes and writes; the file is in uit_ afterwards, with plain line ends.
  Uitslag Schrijf(std::int16_t proband) {
    EXPECT_EQ(Bereken(proband), Einde::Klaar);
    return SchrijfTabel();
  }
  Uitslag SchrijfTabel() {
    TekstSchrijver schrijver;
    EXPECT_TRUE(schrijver.Open(set_.map / "uit.txt"));
    const Gegevens bronnen{set_.Persoon,   set_.Relatie, set_.Plaats,
                           set_.Opmerking, set_.volgers, set_.schrijfwijze};
    const Uitslag uitslag = SchrijfMet(schrijver, bronnen);
    EXPECT_TRUE(schrijver.Sluit());
    uit_ = LeesBytes(set_.map / "uit.txt");
    return uitslag;
  }
  // The report that is written: here the text.
  virtual Uitslag SchrijfMet(TekstSchrijver& schrijver, const Gegevens& bronnen) {
    ZinOpties zin;
    zin.ookOpm = opties_.KwOokOpm;
    zin.ookNrs = opties_.KwOokNrs;
    zin.inHTML = opties_.KwInHTML;
    schrijver.ZetRechterMarge(opties_.KwInHTML ? TekstSchrijver::kGeenRechterMarge : 78);
    return KwstSchrijver(tabel_, opties_, bronnen, zin, schrijver, verloop_).Schrijf();
  }
  KwstFamilie Familie() { return BouwKwstFamilie(set_.bouw); }
  [[nodiscard]] bool Bevat(std::string_view tekst) const {
    return uit_.find(tekst) != std::string::npos;
  }

  ProefSet set_;
  KwstTabel tabel_;
  KwstOpties opties_;
  Verloop verloop_{[] { return false; }, [](int, int) {}};
  std::string uit_;
};

}  // namespace lb77
