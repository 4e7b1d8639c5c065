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

TEST(GeneratiesVak, ZetTerugWatGeweigerdIs) {
  NepGesprek gesprek;
  Generatievorm vorm(gesprek, {2, 10, "Onjuist aantal generaties (2-10)", "4"});
  for (const std::string_view tekst : {"", "11"}) {
    vorm.MaxGen.ZetTekst(tekst);
    vorm.GaNaar(vorm.MaxGen);
    EXPECT_FALSE(vorm.VerlaatVeld()) << tekst;
    EXPECT_EQ(vorm.MaxGen.Tekst(), "4") << tekst;
    EXPECT_EQ(gesprek.Neem().size(), 1U);
  }
  EXPECT_TRUE(vorm.VerlaatVeld());
}

class Grensvorm final : public Formulier {
 public:
  explicit Grensvorm(Gesprek& gesprek)
      : Formulier("Grensvorm", "Grenzen"),
        Posities(*this, gesprek,
                 {"Posities", "Posities:", 2, 0, 25, {}, "Onjuist aantal posities (0-25)"}) {}
  GrensVak Posities;
};

TEST(GrensVak, IsLeegNulWaarNietsVerplichtIs) {
  NepGesprek gesprek;
  Grensvorm vorm(gesprek);
  vorm.GaNaar(vorm.Posities);
  EXPECT_TRUE(vorm.VerlaatVeld());
  EXPECT_EQ(vorm.Posities.Getal(), 0);
  vorm.Posities.ZetTekst("26");
  vorm.GaNaar(vorm.Posities);
  EXPECT_FALSE(vorm.VerlaatVeld());
  EXPECT_EQ(gesprek.Neem(),
            (std::vector<std::string>{"! uitroep \"Onjuist aantal posities (0-25)\""}));
  EXPECT_EQ(vorm.Posities.Tekst(), "26");
}

}  // namespace
}  // namespace lb77
