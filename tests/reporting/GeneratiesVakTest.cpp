#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "reporting/GeneratiesVak.h"
#include "steun/NepGesprek.h"

namespace lb77 {
namespace {

class Generatievorm final : public Formulier {
 public:
  Generatievorm(Gesprek& gesprek, const Generatiegrens& grens)
      : Formulier("Generatievorm", "Generaties"), MaxGen(*this, gesprek, grens) {}
  GeneratiesVak MaxGen;
};

TEST(GeneratiesVak, WeigertWatLeegIsOfBuitenZijnGrenzen) {
  NepGesprek gesprek;
  Generatievorm vorm(gesprek, {2, 10, "Onjuist aantal generaties (2-10)"});
  const auto verlaat = [&](std::string_view tekst) {
    vorm.MaxGen.ZetTekst(tekst);
    vorm.GaNaar(vorm.MaxGen);
    return vorm.VerlaatVeld();
  };
  EXPECT_TRUE(verlaat("2"));
  EXPECT_TRUE(verlaat("10"));
  EXPECT_EQ(vorm.MaxGen.Generaties(), 10);
  EXPECT_TRUE(gesprek.Neem().empty());
  EXPECT_FALSE(verlaat(" "));
  EXPECT_FALSE(verlaat("1"));
  EXPECT_FALSE(verlaat("11"));
  EXPECT_FALSE(verlaat("x"));
  const std::string buiten = "! uitroep \"Onjuist aantal generaties (2-10)\"";
  EXPECT_EQ(gesprek.Neem(),
            (std::vector<std::string>{"! uitroep \"Het maximum aantal generaties is verplicht\"",
                                      buiten, buiten, buiten}));
}

}  // namespace
}  // namespace lb77
