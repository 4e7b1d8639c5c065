#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "steun/Keten.h"

namespace lb77 {
namespace {

Keten Drie() {
  return Keten({{"Vraag", "Wie", "vul Nr 9\ndruk OKButton"},
                {"Links", "Adressen", "druk OKButton", false},
                {"Werk", "Bezig", ""},
                {"Toon", "Verslag", "sluit"}});
}

TEST(Keten, DeGewoneWeg) {
  EXPECT_EQ(Drie().Draaiboek(), "vul Nr 9\ndruk OKButton\nsluit\n");
  EXPECT_EQ(Drie().Verslag(),
            "+ Vraag \"Wie\"\n+ Werk \"Bezig\"\n- Werk\n+ Toon \"Verslag\"\n- Toon\n- Vraag\n");
}

TEST(Keten, WatEenFormulierAndersDoetKomtOpZijnPlaats) {
  const Keten keten = Drie().In("Links", "  druk BackButton\n", "! info \"Dag\"").Tot("Links");
  EXPECT_EQ(keten.Draaiboek(), "vul Nr 9\ndruk OKButton\ndruk BackButton\n");
  EXPECT_EQ(keten.Verslag(),
            "+ Vraag \"Wie\"\n+ Links \"Adressen\"\n! info \"Dag\"\n- Links\n- Vraag\n");
}

TEST(Keten, WatEenFormulierZegtVerandertZijnWegNiet) {
  const Keten keten = Drie().Zegt("Werk", "! stop \"Stuk\"").Tot("Werk");
  EXPECT_EQ(keten.Draaiboek(), "vul Nr 9\ndruk OKButton\n");
  EXPECT_EQ(keten.Verslag(),
            "+ Vraag \"Wie\"\n+ Werk \"Bezig\"\n! stop \"Stuk\"\n- Werk\n- Vraag\n");
}

TEST(Keten, EenOnbekendFormulierFaalt) {
  EXPECT_NONFATAL_FAILURE(static_cast<void>(Drie().Tot("Nergens")),
                          "Nergens is geen formulier van deze keten");
}

}  // namespace
}  // namespace lb77
