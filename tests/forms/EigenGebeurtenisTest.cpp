// A kind of control with events of its own, and a form that hangs its handlers on it as well.
#include <gmock/gmock.h>

#include "forms/Formulier.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Eigenvak final : public Tekstvak {
 public:
  Eigenvak(Formulier& formulier, std::vector<std::string>& dagboek)
      : Tekstvak(formulier, "Vak", "&Vak"), dagboek_(dagboek) {}

  bool goed = true;
  bool neemtToets = false;

 protected:
  void OpBetreden() override { dagboek_.emplace_back("eigen in"); }
  bool OpVerlaten() override {
    dagboek_.emplace_back("eigen uit");
    return goed;
  }
  void OpToets(ToetsGebeurtenis& toets) override {
    dagboek_.emplace_back("eigen toets");
    toets.verwerkt = neemtToets;
  }
  void OpDubbelklik() override { dagboek_.emplace_back("eigen dubbelklik"); }
  void OpWijziging() override { dagboek_.emplace_back("eigen anders"); }

 private:
  std::vector<std::string>& dagboek_;
};

class Eigenvorm final : public Formulier {
 public:
  Eigenvorm() : Formulier("Eigen", "") {
    Vak.BijBetreden([this] { dagboek.emplace_back("in"); });
    Vak.BijVerlaten([this] {
      dagboek.emplace_back("uit");
      return true;
    });
    Vak.BijToets([this](ToetsGebeurtenis&) { dagboek.emplace_back("toets"); });
    Vak.BijDubbelklik([this] { dagboek.emplace_back("dubbelklik"); });
    Vak.BijWijziging([this] { dagboek.emplace_back("anders"); });
  }
  using Formulier::Herlaad;
  using Formulier::Sluit;
  using Formulier::ZetEersteVeld;

  std::vector<std::string> dagboek;
  Eigenvak Vak{*this, dagboek};
  Knop Knop1{*this, "Knop1", "&Knop"};

 protected:
  void BijLaden() override { dagboek.emplace_back("geladen"); }
};

class EigenGebeurtenisTest : public ::testing::Test {
 protected:
  void SetUp() override {
    vorm_.GaNaar(vorm_.Vak);
    betreden_ = std::exchange(vorm_.dagboek, {});
  }

  Eigenvorm vorm_;
  std::vector<std::string> betreden_;
};

TEST_F(EigenGebeurtenisTest, HetBetredenIsEerstVanDeSoortDanVanHetFormulier) {
  EXPECT_THAT(betreden_, ElementsAre("eigen in", "in"));
}

TEST_F(EigenGebeurtenisTest, BeideControlesLopenDeEigenEerst) {
  EXPECT_TRUE(vorm_.VerlaatVeld());
  EXPECT_THAT(vorm_.dagboek, ElementsAre("eigen uit", "uit"));
}

TEST_F(EigenGebeurtenisTest, EenEigenControleDieMisluktHoudtDeFocusEnDeAndereTegen) {
  vorm_.Vak.goed = false;
  EXPECT_FALSE(vorm_.Klik(vorm_.Knop1));
  EXPECT_THAT(vorm_.dagboek, ElementsAre("eigen uit"));
  EXPECT_EQ(vorm_.FocusVeld(), &vorm_.Vak);
}

TEST_F(EigenGebeurtenisTest, EenToetsDieDeSoortAfhandeltKomtNietBijHetFormulier) {
  EXPECT_FALSE(vorm_.Toets(&vorm_.Vak, {.code = 'A', .teken = 'a'}));
  EXPECT_THAT(vorm_.dagboek, ElementsAre("eigen toets", "toets"));
  vorm_.dagboek.clear();
  vorm_.Vak.neemtToets = true;
  EXPECT_TRUE(vorm_.Toets(&vorm_.Vak, {.code = 'A', .teken = 'a'}));
  EXPECT_THAT(vorm_.dagboek, ElementsAre("eigen toets"));
}

TEST_F(EigenGebeurtenisTest, DubbelklikEnWijzigingZijnVanBeide) {
  vorm_.Dubbelklik(vorm_.Vak);
  vorm_.Bewerkt(vorm_.Vak, "x");
  EXPECT_THAT(vorm_.dagboek,
              ElementsAre("eigen dubbelklik", "dubbelklik", "eigen anders", "anders"));
}

TEST_F(EigenGebeurtenisTest, CodeDieDeTekstZetGeeftOokDeSoortGeenGebeurtenis) {
  vorm_.Vak.ZetTekst("x");
  EXPECT_THAT(vorm_.dagboek, IsEmpty());
}

TEST_F(EigenGebeurtenisTest, HerladenLaadtEnBetreedtHetEersteVeldOpnieuw) {
  vorm_.ZetEersteVeld(vorm_.Vak);
  vorm_.Bewerkt(vorm_.Vak, "x");
  vorm_.dagboek.clear();
  vorm_.Herlaad();
  EXPECT_THAT(vorm_.dagboek, ElementsAre("geladen", "eigen in", "in"));
  EXPECT_FALSE(vorm_.Gewijzigd());
  EXPECT_EQ(vorm_.FocusVeld(), &vorm_.Vak);
}

TEST_F(EigenGebeurtenisTest, HerladenVanWatSluitBetreedtNiets) {
  vorm_.ZetEersteVeld(vorm_.Vak);
  vorm_.Sluit();
  vorm_.Herlaad();
  EXPECT_THAT(vorm_.dagboek, ElementsAre("geladen"));
  EXPECT_EQ(vorm_.FocusVeld(), nullptr);
}

}  // namespace
}  // namespace lb77
