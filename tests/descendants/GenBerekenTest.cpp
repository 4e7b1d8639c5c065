#include <gtest/gtest.h>

#include "descendants/GenBereken.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

class GenBerekenToets : public FamilieToets {
 protected:
  // Runs the form; what it looks like when it has closed is for `zie`.
  void Reken(std::int16_t stamouder, const std::function<void(GenBereken&)>& zie) {
    opties_.GenStamouderNr = stamouder;
    opties_.GenVolgHerh = true;
    Verwacht(
        "",
        [&](Hoofdmodule& hoofd) {
          GenBereken vorm(hoofd, opties_, tabel_);
          hoofd.gesprek.ToonModaal(vorm);
          zie(vorm);
        },
        R"(
          + GenBereken "Opbouwen Genealogie / Parenteel"
          - GenBereken
        )");
  }

  GenOpties opties_;
  GenTabel tabel_;
};

TEST_F(GenBerekenToets, EenHeleTabelZegtNiets) {
  Reken(Bouw().Man("Jan", "Kok"), [](GenBereken& vorm) {
    EXPECT_FALSE(vorm.MaximumLabel.Zichtbaar());
    EXPECT_FALSE(vorm.GeduldLabel.Zichtbaar());
    EXPECT_EQ(vorm.Aantal.Stand.Tekst(), "1");
  });
}

TEST_F(GenBerekenToets, EenVolleTabelToontAlleenHetMaximum) {
  const auto kring = Bouw().Man("Kring", "Kok");
  Bouw().Relatie(kring, 0, {kring, kring});
  Reken(kring, [](GenBereken& vorm) {
    EXPECT_TRUE(vorm.MaximumLabel.Zichtbaar());
    EXPECT_FALSE(vorm.GeduldLabel.Zichtbaar());
    EXPECT_EQ(vorm.Aantal.Stand.Tekst(), "2000");
  });
  EXPECT_EQ(tabel_.GenAantal(), 2000);
}

}  // namespace
}  // namespace lb77
