#include <gtest/gtest.h>

#include "entry/OKPersoon.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

class OKPersoonTest : public FamilieToets {
 protected:
  void Toon(std::string_view draaiboek, std::int16_t nr, std::string_view voor,
            std::string_view achter, std::string_view verslag, const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          hoofd.volgers.HuidigPersoonNr = nr;
          OKPersoon vraag(hoofd, voor, achter);
          hoofd.gesprek.ToonModaal(vraag);
          na_ = hoofd.volgers.HuidigPersoonNr;
        },
        "+ OKPersoon \"Zoek Persoon op Naam\"\n" + Regels(verslag) + "- OKPersoon\n", plek);
  }

  std::int16_t na_ = -1;
};

TEST_F(OKPersoonTest, ToontDePersoonMetZijnPartner) {
  const auto jan = Bouw().Man("Jan", "Vos", {{"GebDatum", "01.05.1850"}});
  Bouw().Relatie(jan, Bouw().Vrouw("Anna", "Bos"), {}, {{"WHuwDatum", "03.06.1875"}});
  Toon("toon\ndruk JaButton", jan, " Jan ", " Vos ", R"(
    : OKPersoon "Zoek Persoon op Naam"
    = VraagLabel "Is dit de juiste Persoon ?"
    = PNr "2"
    = Naam "Jan Vos"
    = InfoTekst "Jan Vos(2), geb. 1.5.1850, tr. 3.6.1875 Anna Bos(3) "
    = JaButton "&Ja"
    = NeeButton "&Nee"
    * JaButton
  )");
  EXPECT_EQ(na_, jan);
}

TEST_F(OKPersoonTest, NeeEnSluitenZonderAntwoordLatenNiemandOver) {
  Bouw().Man("Jan", "Vos");
  Toon("druk NeeButton", 2, "Jan", "Vos", "");
  EXPECT_EQ(na_, 0);
  Toon("toets Escape", 2, "Jan", "Vos", "");
  EXPECT_EQ(na_, 0);
  Toon("sluit", 2, "Jan", "Vos", "");
  EXPECT_EQ(na_, 0);
}

TEST_F(OKPersoonTest, InDeSamenvattingValtNietTeTypen) {
  Stil([](Hoofdmodule& hoofd) {
    EXPECT_TRUE(OKPersoon(hoofd, "Jan", "Vos").InfoTekst.AlleenLezen());
  });
}

TEST_F(OKPersoonTest, EnterIsJa) {
  Bouw().Man("Jan", "Vos");
  Toon("toets Enter", 2, "Jan", "Vos", "");
  EXPECT_EQ(na_, 2);
}

TEST_F(OKPersoonTest, EenNaamDieOntbreektLaatGeenBlankAchter) {
  Bouw().Man("Jan", "Vos");
  Toon("toon Naam\ndruk JaButton", 2, "", "Vos", "= Naam \"Vos\"");
  Toon("toon Naam\ndruk JaButton", 2, "Jan", " ", "= Naam \"Jan\"");
}

TEST_F(OKPersoonTest, EenOnleesbarePersoonHeeftGeenGegevens) {
  Toon("toon InfoTekst\ndruk JaButton", 9, "Jan", "Vos",
       "= InfoTekst \"<< Geen gegevens gevonden >>\"");
}

}  // namespace
}  // namespace lb77
