#include <gmock/gmock.h>

#include <stdexcept>

#include "forms/Formulier.h"
#include "forms/Regels.h"
#include "forms/Rij.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;

// What a kind of control needs besides its form; there is only one.
struct Sessie {
  Sessie() = default;
  Sessie(const Sessie&) = delete;
  int vragen = 0;
};

class Sessievak : public Tekstvak {
 public:
  Sessievak(Formulier& formulier, std::string_view naam, Sessie& sessie)
      : Tekstvak(formulier, naam), sessie_(sessie) {}
  void Vraag() { ++sessie_.vragen; }

 private:
  Sessie& sessie_;
};

struct RelatieRegel {
  RelatieRegel(Formulier& formulier, int nummer, Sessie& sessie)
      : RelNrP(formulier, Genummerd("RelNrP", nummer)),
        Naam(formulier, Genummerd("Naam", nummer), sessie) {}

  Verwijzing RelNrP;
  Sessievak Naam;
};

class RegelFormulier : public Formulier {
 public:
  explicit RegelFormulier(Sessie& sessie)
      : Formulier("Regels", ""), Relaties(*this, 1, sessie), Plaats(*this, "Plaats", 0, sessie) {}

  Regels<RelatieRegel, 3> Relaties;
  Rij<Sessievak, 2> Plaats;
};

class RegelsTest : public ::testing::Test {
 protected:
  Sessie sessie_;
  RegelFormulier formulier_{sessie_};
};

TEST_F(RegelsTest, BedieningenStaanRegelVoorRegel) {
  std::vector<std::string> namen;
  for (const Bediening* een : formulier_.Bedieningen()) namen.push_back(een->Naam());
  EXPECT_THAT(namen, ElementsAre("RelNrP(1)", "Naam(1)", "RelNrP(2)", "Naam(2)", "RelNrP(3)",
                                 "Naam(3)", "Plaats(0)", "Plaats(1)"));
}

TEST_F(RegelsTest, TabGaatRegelVoorRegel) {
  EXPECT_EQ(formulier_.Buur(&formulier_.Relaties(1).Naam, 1), &formulier_.Relaties(2).RelNrP);
}

TEST_F(RegelsTest, EenVerwijzingBehoudtZichzelf) {
  formulier_.Relaties(2).Naam.Vraag();
  formulier_.Plaats(1).Vraag();
  EXPECT_EQ(sessie_.vragen, 2);
}

TEST_F(RegelsTest, KentZijnNummersEnLooptZeAf) {
  EXPECT_EQ(formulier_.Relaties.Eerste(), 1);
  EXPECT_EQ(formulier_.Relaties.Laatste(), 3);
  std::vector<std::string> namen;
  formulier_.Relaties.Elk([&](int nummer, RelatieRegel& regel) {
    namen.push_back(regel.Naam.Naam() + "=" + Genummerd("x", nummer));
  });
  EXPECT_THAT(namen, ElementsAre("Naam(1)=x(1)", "Naam(2)=x(2)", "Naam(3)=x(3)"));
}

TEST_F(RegelsTest, LeestNietBuitenDeRegels) {
  EXPECT_THROW(static_cast<void>(formulier_.Relaties(0)), std::out_of_range);
  EXPECT_THROW(static_cast<void>(formulier_.Relaties(4)), std::out_of_range);
}

TEST(Rijnaam, IsEenNaamMetEenNummer) {
  EXPECT_EQ(Genummerd("RelNrP", 12), "RelNrP(12)");
  const auto lid = OntleedRijnaam("RelNrP(12)");
  ASSERT_TRUE(lid);
  EXPECT_EQ(lid->familie, "RelNrP");
  EXPECT_EQ(lid->nummer, 12);
}

TEST(Rijnaam, AnderenStaanInGeenRij) {
  for (const char* naam : {"", "RelNrP", "RelNrP(", "RelNrP()", "RelNrP(a)", "RelNrP(01)", "(1)",
                           "RelNrP(1)x", "RelNrP(*)"}) {
    EXPECT_FALSE(OntleedRijnaam(naam)) << naam;
  }
}

}  // namespace
}  // namespace lb77
