#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "reporting/PersoonKop.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

class Kopvorm final : public Formulier {
 public:
  Kopvorm() : Formulier("Kopvorm", "Kop") {}
  PersoonKop Kop{*this, "Stamouder"};
};

class PersoonKopToets : public FamilieToets {
 protected:
  // The four values, shown for that person.
  std::vector<std::string> Toon(std::int16_t nr) {
    Kopvorm vorm;
    Stil([&](Hoofdmodule& hoofd) { vorm.Kop.Toon(hoofd.Persoon, nr); });
    naam_ = vorm.Kop.Naam();
    std::vector<std::string> uit;
    for (const Bediening* bediening : vorm.Bedieningen()) {
      uit.push_back(bediening->Naam() + "=" + bediening->Waarde());
    }
    return uit;
  }
  std::string naam_;
};

TEST_F(PersoonKopToets, ToontNummerNamenEnPeriode) {
  const auto nr = Bouw().Man("Jan", "van Dam", {{"GebDatum", "00-00-1810"}});
  EXPECT_EQ(Toon(nr), (std::vector<std::string>{"NrStamouder=2", "VoorNmStamouder=Jan",
                                                "AchterNmStamouder=van Dam", "Periode=1810-    "}));
  EXPECT_EQ(naam_, "Jan van Dam");
}

TEST_F(PersoonKopToets, EenNaamDieOntbreektIsOnbekend) {
  const auto nr = Bouw().Man("Jan", "");
  EXPECT_EQ(Toon(nr)[2], "AchterNmStamouder=<onbekend>");
  EXPECT_EQ(naam_, "Jan <onbekend>");
}

TEST_F(PersoonKopToets, EenOnleesbarePersoonHeeftGeenNaam) {
  const std::string onbekend(4, '?');
  EXPECT_EQ(Toon(77),
            (std::vector<std::string>{"NrStamouder=77", "VoorNmStamouder=", "AchterNmStamouder=",
                                      "Periode=" + onbekend + "-" + onbekend}));
}

}  // namespace
}  // namespace lb77
