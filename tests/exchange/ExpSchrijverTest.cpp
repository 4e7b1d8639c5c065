#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange/ExpSchrijver.h"

namespace lb77 {
namespace {

class Teller final : public ExpSchrijver {
 public:
  void Kop() override { wat += "kop "; }
  void Persoon(std::int16_t nr) override { wat += "P" + std::to_string(nr) + " "; }
  void Relatie(std::int16_t nr) override { wat += "R" + std::to_string(nr) + " "; }
  void Slot() override { wat += "slot "; }
  void LogSlot(const ExpTelling&) override { wat += "log "; }

  std::string wat;
};

class ExpSchrijverTest : public ::testing::Test {
 protected:
  ExpSchrijverTest() {
    for (const auto nr : {std::int16_t{7}, std::int16_t{3}}) {
      EXPECT_TRUE(selectie_.SelPersonen.Voeg(nr));
    }
    EXPECT_TRUE(selectie_.SelRelaties.Voeg(5));
  }
  // Goes on that many times.
  ExpTelling Loop(int keren) {
    return LoopSelectie(schrijver_, selectie_,
                        {[&keren] { return keren-- > 0; },
                         [this](const ExpTelling& telling) {
                           getoond_.push_back(std::to_string(telling.personen) + "," +
                                              std::to_string(telling.relaties) + "," +
                                              std::to_string(telling.bronnen));
                         }});
  }

  ExpSelectie selectie_;
  Teller schrijver_;
  std::vector<std::string> getoond_;
};

TEST_F(ExpSchrijverTest, LooptPersonenEnRelatiesInHunVolgorde) {
  const ExpTelling telling = Loop(99);
  EXPECT_EQ(schrijver_.wat, "kop P7 P3 R5 slot ");
  EXPECT_EQ(telling.personen, 2);
  EXPECT_EQ(telling.relaties, 1);
  EXPECT_EQ(telling.bronnen, 0);
  EXPECT_THAT(getoond_, ::testing::ElementsAre("1,0,0", "2,0,0", "2,1,0"));
}

TEST_F(ExpSchrijverTest, StoptZodraHetNietDoorgaat) {
  const char* verwacht[] = {"kop ", "kop P7 ", "kop P7 P3 ", "kop P7 P3 R5 ", "kop P7 P3 R5 slot "};
  for (int keren = 0; keren < 5; ++keren) {
    schrijver_.wat.clear();
    const ExpTelling telling = Loop(keren);
    EXPECT_EQ(schrijver_.wat, verwacht[keren]);
    EXPECT_EQ(telling.personen + telling.relaties, std::min(keren, 3));
  }
}

}  // namespace
}  // namespace lb77
