#include <gtest/gtest.h>

#include <stdexcept>

#include "forms/Formulier.h"
#include "forms/Rij.h"

namespace lb77 {
namespace {

class RijFormulier : public Formulier {
 public:
  RijFormulier() : Formulier("Rijen", "") {}

  Rij<Tekstvak, 5> RelNrP{*this, "RelNrP", 1, "&Relatie", std::size_t{6}};
  Rij<Knop, 2> PersNr{*this, "PersNr", 0, "i"};
};

TEST(Rij, NoemtElkElementBijZijnNummer) {
  RijFormulier formulier;
  EXPECT_EQ(formulier.RelNrP(1).Naam(), "RelNrP(1)");
  EXPECT_EQ(formulier.RelNrP(5).Naam(), "RelNrP(5)");
  EXPECT_EQ(formulier.PersNr(0).Naam(), "PersNr(0)");
  EXPECT_EQ(formulier.Zoek("RelNrP(3)"), &formulier.RelNrP(3));
  EXPECT_EQ(formulier.Zoek("RelNrP(0)"), nullptr);
}

TEST(Rij, GeeftElkElementDezelfdeEigenschappen) {
  const RijFormulier formulier;
  EXPECT_EQ(formulier.RelNrP(4).MaxLengte(), 6U);
  EXPECT_EQ(formulier.RelNrP(4).Bijschrift(), "&Relatie");
}

TEST(Rij, KentEersteEnLaatste) {
  const RijFormulier formulier;
  EXPECT_EQ(formulier.RelNrP.Eerste(), 1);
  EXPECT_EQ(formulier.RelNrP.Laatste(), 5);
  EXPECT_EQ(formulier.PersNr.Eerste(), 0);
  EXPECT_EQ(formulier.PersNr.Laatste(), 1);
}

TEST(Rij, LooptZijnElementenInVolgordeAf) {
  RijFormulier formulier;
  std::string namen;
  formulier.PersNr.Elk(
      [&](int nummer, const Knop& knop) { namen += knop.Naam() + (nummer == 0 ? " " : ""); });
  EXPECT_EQ(namen, "PersNr(0) PersNr(1)");
}

TEST(Rij, LeestNietBuitenDeRij) {
  RijFormulier formulier;
  EXPECT_THROW(static_cast<void>(formulier.RelNrP(0)), std::out_of_range);
  EXPECT_THROW(static_cast<void>(formulier.RelNrP(6)), std::out_of_range);
}

}  // namespace
}  // namespace lb77
