// A family of four generations, typed into the windows without a mouse.
#include <gtest/gtest.h>

#include "Toetsenbord.h"
#include "app/Klok.h"
#include "program/Programma.h"
#include "steun/TijdelijkeMap.h"
#include "steun/Verhaal.h"

namespace lb77 {
namespace {

class VerhaalVensterTest : public Toetsenbord {
 protected:
  TijdelijkeMap map_;
  VasteKlok klok_{{2026, 1, 2, 3, 4, 5}};
};

TEST_F(VerhaalVensterTest, VanNietsNaarVierGeneratiesMetToetsen) {
  Neem(VerhaalVanDeFamilie() + VerhaalVanDeOpmerkingen() +
       "druk BackButton\nkies KeuzeAfsluiten\n");
  VoerProgramma(gesprek, klok_, map_.Pad());
  EXPECT_TRUE(Klaar()) << Hier();
  // Settings, seven places, ten partners, seven orders, four questions on parents and sex, and 23 times
  // that there is no remark yet.
  EXPECT_EQ(boxen.size(), 52U);
  for (const VerhaalBestand& bestand : VerwachteBestanden()) {
    const auto pad = map_.Pad() / "DATA" / "VERHAAL" / ("VERHAAL." + std::string(bestand.soort));
    EXPECT_EQ(EersteVerschil(bestand, LeesBytes(pad)), "");
  }
}

}  // namespace
}  // namespace lb77
