#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "forms/ProefFormulier.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FormulierTest : public ::testing::Test {
 protected:
  FormulierTest() { formulier_.Start(); }

  ProefFormulier formulier_;
};

TEST(Formulier, KentZijnBedieningenInVolgordeEnOpNaam) {
  ProefFormulier formulier;
  EXPECT_EQ(formulier.Bedieningen().front(), &formulier.Naam1);
  EXPECT_EQ(formulier.Bedieningen().back(), &formulier.BackButton);
  EXPECT_EQ(formulier.Zoek("Vink"), &formulier.Vink);
  EXPECT_EQ(formulier.Zoek("vink"), nullptr);
}

TEST(Formulier, TerugKnopIsBackButtonEnAndersCancelButton) {
  ProefFormulier metBack;
  EXPECT_EQ(metBack.TerugKnop(), &metBack.BackButton);
  Formulier metCancel("Kaal", "");
  EXPECT_EQ(metCancel.TerugKnop(), nullptr);
  const Knop cancel(metCancel, "CancelButton", "&Annuleren");
  EXPECT_EQ(metCancel.TerugKnop(), &cancel);
}

TEST(Formulier, GeeftHetEersteVeldDeFocusNaHetActiveren) {
  ProefFormulier formulier;
  EXPECT_TRUE(formulier.Laad());
  EXPECT_EQ(formulier.FocusVeld(), nullptr);
  formulier.Activeer();
  EXPECT_THAT(formulier.dagboek, ElementsAre("geladen", "actief", "in Naam1"));
}

TEST(Formulier, LaatDeFocusDieHetActiverenZelfZette) {
  ProefFormulier formulier;
  formulier.focusBijActiveren = &formulier.Naam2;
  EXPECT_TRUE(formulier.Laad());
  formulier.Activeer();
  EXPECT_THAT(formulier.dagboek, ElementsAre("geladen", "actief", "in Naam2"));
}

TEST(Formulier, LaatEenUitgeschakeldEersteVeldLopen) {
  ProefFormulier formulier;
  formulier.Naam1.ZetIngeschakeld(false);
  formulier.Start();
  EXPECT_EQ(formulier.FocusVeld(), nullptr);
}

TEST(Formulier, WordtBijHetLadenWeerAlsNieuw) {
  ProefFormulier formulier;
  formulier.Start();
  formulier.Bewerkt(formulier.Naam1, "x");
  formulier.VraagStop();
  formulier.ZetBezig(true);
  formulier.Verberg();
  formulier.Sluit();
  EXPECT_TRUE(formulier.Laad());
  EXPECT_FALSE(formulier.Gesloten() || formulier.Verborgen() || formulier.Gewijzigd() ||
               formulier.Bezig() || formulier.StopVerzocht());
  EXPECT_EQ(formulier.FocusVeld(), nullptr);
}

TEST(Formulier, OnthoudtTitelHulpEnPlek) {
  Formulier formulier("Kaal", "Titel");
  formulier.ZetTitel("Andere titel");
  formulier.ZetHulpOnderwerp("menu");
  EXPECT_FALSE(formulier.Positie().has_value());
  formulier.ZetPositie({3, -4});
  EXPECT_EQ(formulier.Titel(), "Andere titel");
  EXPECT_EQ(formulier.HulpOnderwerp(), "menu");
  EXPECT_EQ(formulier.Positie()->x, 3);
  EXPECT_EQ(formulier.Positie()->y, -4);
}

TEST_F(FormulierTest, ZettenVanuitCodeGeeftGeenGebeurtenis) {
  formulier_.Naam1.ZetTekst("abc");
  formulier_.Lijst1.ZetIndex(2);
  formulier_.Vink.Zet(true);
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
  EXPECT_FALSE(formulier_.Gewijzigd());
}

TEST_F(FormulierTest, GewijzigdGeldtPasNaEenHandelingVanDeGebruiker) {
  formulier_.Naam1.ZetTekst("abc");
  formulier_.Bewerkt(formulier_.Naam1, "abc");
  EXPECT_FALSE(formulier_.Gewijzigd());
  formulier_.Bewerkt(formulier_.Naam1, "abd");
  EXPECT_TRUE(formulier_.Gewijzigd());
  EXPECT_THAT(formulier_.dagboek, ElementsAre("anders Naam1"));
}

TEST_F(FormulierTest, KlikOpEenVinkjeZetHetOm) {
  EXPECT_TRUE(formulier_.Klik(formulier_.Vink));
  EXPECT_TRUE(formulier_.Vink.Gekozen());
  EXPECT_TRUE(formulier_.Gewijzigd());
  EXPECT_TRUE(formulier_.Klik(formulier_.Vink));
  EXPECT_FALSE(formulier_.Vink.Gekozen());
}

TEST_F(FormulierTest, KlikOpEenOptieWistDeAndereVanDeGroep) {
  formulier_.Los.Zet(true);
  formulier_.Klik(formulier_.Links);
  formulier_.Klik(formulier_.Rechts);
  EXPECT_FALSE(formulier_.Links.Gekozen());
  EXPECT_TRUE(formulier_.Rechts.Gekozen());
  EXPECT_TRUE(formulier_.Los.Gekozen());
}

TEST_F(FormulierTest, KlikOpDeGekozenOptieVerandertNiets) {
  formulier_.Links.Zet(true);
  int keer = 0;
  formulier_.Links.BijWijziging([&] { ++keer; });
  EXPECT_TRUE(formulier_.Klik(formulier_.Links));
  EXPECT_TRUE(formulier_.Links.Gekozen());
  EXPECT_EQ(keer, 0);
  EXPECT_FALSE(formulier_.Gewijzigd());
}

TEST_F(FormulierTest, KlikOpWatNietBruikbaarIsWordtIngeslikt) {
  formulier_.OKButton.ZetIngeschakeld(false);
  formulier_.Kop.ZetZichtbaar(false);
  EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
  EXPECT_FALSE(formulier_.Klik(formulier_.Kop));
  EXPECT_FALSE(formulier_.Dubbelklik(formulier_.Kop));
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Naam1);
}

TEST_F(FormulierTest, KiezenGeeftAlleenBijEenAndereRijEenGebeurtenis) {
  EXPECT_TRUE(formulier_.Kies(formulier_.Lijst1, 1));
  EXPECT_TRUE(formulier_.Kies(formulier_.Lijst1, 1));
  EXPECT_TRUE(formulier_.Kies(formulier_.Lijst1, 7));
  EXPECT_TRUE(formulier_.Kies(formulier_.Lijst1, -1));
  EXPECT_EQ(formulier_.Lijst1.Index(), -1);
  EXPECT_THAT(formulier_.dagboek,
              ElementsAre("uit Naam1", "in Lijst1", "anders Lijst1", "anders Lijst1"));
}

TEST_F(FormulierTest, DubbelklikVerlaatHetVeld) {
  EXPECT_TRUE(formulier_.Dubbelklik(formulier_.Kop));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "dubbelklik Kop"));
}

TEST_F(FormulierTest, EenWijzigingDieSluitHoudtDeKlikTegen) {
  formulier_.Vink.BijWijziging([&] { formulier_.Sluit(); });
  EXPECT_TRUE(formulier_.Klik(formulier_.Vink));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1"));
}

// The frame.

TEST_F(FormulierTest, HetKaderDoetWatBackButtonDoetZonderControle) {
  formulier_.weigeraar = &formulier_.Naam1;
  formulier_.VraagSluiten();
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik BackButton"));
}

TEST_F(FormulierTest, HetKaderDoetNietsMetEenUitgeschakeldeTerugknop) {
  formulier_.BackButton.ZetIngeschakeld(false);
  formulier_.VraagSluiten();
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
  EXPECT_FALSE(formulier_.Gesloten());
}

class Weigeraar : public Formulier {
 public:
  Weigeraar() : Formulier("Weigeraar", "") {}
  bool mag = false;

 protected:
  [[nodiscard]] bool MagSluiten() override { return mag; }
};

TEST(Formulier, HetKaderZonderTerugknopKanWordenGeweigerd) {
  Weigeraar formulier;
  formulier.VraagSluiten();
  EXPECT_FALSE(formulier.Gesloten());
  formulier.mag = true;
  formulier.VraagSluiten();
  EXPECT_TRUE(formulier.Gesloten());
}

// A stop request while the form repaints.

TEST_F(FormulierTest, TijdensHetVerversenVervaltAlleInvoer) {
  formulier_.ZetVerversing(true);
  EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
  EXPECT_FALSE(formulier_.Dubbelklik(formulier_.Kop));
  EXPECT_FALSE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_FALSE(formulier_.VerlaatVeld());
  EXPECT_FALSE(formulier_.Kies(formulier_.Lijst1, 1));
  EXPECT_TRUE(formulier_.Toets(&formulier_.Naam1, ToetsVanTeken('a')));
  formulier_.Typ(formulier_.Naam1, 'a');
  formulier_.Bewerkt(formulier_.Naam1, "b");
  EXPECT_EQ(formulier_.Naam1.Tekst(), "");
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
  EXPECT_FALSE(formulier_.StopVerzocht());
}

TEST_F(FormulierTest, TijdensHetVerversenVraagtEscapeOmStoppen) {
  formulier_.ZetVerversing(true);
  EXPECT_TRUE(formulier_.Toets(nullptr, {.code = toets::kEscape}));
  EXPECT_TRUE(formulier_.StopVerzocht());
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
  formulier_.WisStop();
  EXPECT_FALSE(formulier_.StopVerzocht());
}

TEST_F(FormulierTest, TijdensHetVerversenVraagtDeTerugknopOmStoppen) {
  formulier_.ZetVerversing(true);
  EXPECT_FALSE(formulier_.Klik(formulier_.BackButton));
  EXPECT_TRUE(formulier_.StopVerzocht());
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierTest, TijdensHetVerversenVraagtHetKaderOmStoppen) {
  formulier_.ZetVerversing(true);
  formulier_.VraagSluiten();
  EXPECT_TRUE(formulier_.StopVerzocht());
  EXPECT_FALSE(formulier_.Gesloten());
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierTest, NaHetVerversenWerktAllesWeer) {
  formulier_.ZetVerversing(true);
  formulier_.ZetVerversing(false);
  EXPECT_TRUE(formulier_.Klik(formulier_.BackButton));
  EXPECT_FALSE(formulier_.StopVerzocht());
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik BackButton"));
}

}  // namespace
}  // namespace lb77
