// The text of the kinship report.
#include <gtest/gtest.h>

#include "reports/VerwantSchrijver.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

class VerwantSchrijverTest : public ::testing::Test {
 protected:
  using Regels = std::vector<std::string>;
  [[nodiscard]] Regels Tekst(const std::vector<VerwantEntry>& keten) {
    return VerwantTekst(keten, set_.Persoon);
  }

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
};

TEST_F(VerwantSchrijverTest, ZonderKetenIsErGeenVerwantschap) {
  EXPECT_EQ(Tekst({}), (Regels{"Schema Verwantschap", "Geen verwantschap gevonden"}));
}

TEST_F(VerwantSchrijverTest, ElkeStapNoemtWatDeVolgendeIs) {
  const auto jan = bouw_.Man("Jan", "Smit");
  const auto opa = bouw_.Man("Opa", "Smit");
  const auto oom = bouw_.Man("Oom", "Smit");
  const auto tante = bouw_.Vrouw("Els", "van Dam");
  EXPECT_EQ(Tekst({{tante, 2, VerwantSoort::Partner},
                   {oom, 1, VerwantSoort::Kind},
                   {opa, 0, VerwantSoort::Ouder},
                   {jan, 0, VerwantSoort::Begin}}),
            (Regels{"Schema Verwantschap", "Verwantschap tussen Jan Smit en Els van Dam:", "",
                    "Els van Dam (5)", "partner: ", "Oom Smit (4)", "ouder: ", "Opa Smit (3)",
                    "kind: ", "Jan Smit (2)", "", "3         +                   ",
                    "|         |                   ", "2         4     -**-----5     "}));
}

TEST_F(VerwantSchrijverTest, WieGeenVoornaamHeeftBegintMetZijnAchternaam) {
  const auto jan = bouw_.Man("", "Smit");
  const auto els = bouw_.Vrouw("", "Vos");
  EXPECT_EQ(Tekst({{els, 0, VerwantSoort::Partner}, {jan, 0, VerwantSoort::Begin}}),
            (Regels{"Schema Verwantschap", "Verwantschap tussen  Smit en  Vos:", "", "Vos (3)",
                    "partner: ", " Smit (2)", "", "2     -**-----3     "}));
}

TEST_F(VerwantSchrijverTest, WieOnleesbaarIsWordtOvergeslagen) {
  const auto jan = bouw_.Man("Jan", "Smit");
  EXPECT_EQ(Tekst({{77, 0, VerwantSoort::Kind}, {jan, 0, VerwantSoort::Begin}}),
            (Regels{"Schema Verwantschap", "Verwantschap tussen Jan Smit en  :", "", "Jan Smit (2)",
                    "", "2         ", "|         ", "77        "}));
}

TEST_F(VerwantSchrijverTest, RegelsWordenNooitGebroken) {
  TekstSchrijver uit;
  ASSERT_TRUE(uit.Open(set_.map / "uit.txt"));
  const std::string lang(20000, 'x');
  SchrijfVerwantTekst(uit, {"  a b ", "", lang + " " + lang, "ouder: "});
  ASSERT_TRUE(uit.Sluit());
  EXPECT_EQ(LeesBytes(set_.map / "uit.txt"),
            "  a b \r\n\r\n" + lang + " " + lang + "\r\nouder: \r\n");
}

// A thousand generations and as many columns; the persons are not there.
TEST_F(VerwantSchrijverTest, EenTekeningDieTeGrootIsWordtGenoemd) {
  std::vector<VerwantEntry> keten;
  for (std::int16_t nr = 2; nr < 2003; nr += 2) {
    keten.push_back({nr, 0, VerwantSoort::Ouder});
    keten.push_back({static_cast<std::int16_t>(nr + 1), 0, VerwantSoort::Partner});
  }
  keten.push_back({2004, 0, VerwantSoort::Begin});
  EXPECT_EQ(Tekst(keten), (Regels{"Schema Verwantschap", "Verwantschap tussen   en  :", "", "",
                                  "De tekening is te groot en daarom weggelaten."}));
}

}  // namespace
}  // namespace lb77
