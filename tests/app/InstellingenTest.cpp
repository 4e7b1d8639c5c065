#include "app/Instellingen.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

TEST(Instellingen, ZonderInstellingenIsErGeenTekstbreedte) {
  EXPECT_EQ(Instellingen().Tekstbr(), 0);
}

class InstellingenVanSessie : public SessieToets {};

TEST_F(InstellingenVanSessie, DeTekstbreedteVolgtDeInstelling) {
  ZetIni("[Printer]\nTekstbr=72\n");
  Verwacht("", Met([](Hoofdmodule& hoofd) {
             EXPECT_EQ(hoofd.instellingen.Tekstbr(), 0);
             ASSERT_TRUE(hoofd.Ini.IniLees());
             EXPECT_EQ(hoofd.instellingen.Tekstbr(), 72);
             hoofd.Ini.IniZet("Printer", "Tekstbr", "132");
             EXPECT_EQ(hoofd.instellingen.Tekstbr(), 132);
           }),
           "");
}

}  // namespace
}  // namespace lb77
