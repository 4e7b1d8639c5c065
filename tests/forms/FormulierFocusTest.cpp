// Leave checks: what fires them, how often, and what becomes of whatever caused them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "forms/ProefFormulier.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FormulierFocusTest : public ::testing::Test {
 protected:
  FormulierFocusTest() { formulier_.Start(); }

  // The next leave check of the first field fails.
  void LaatWeigeren() { formulier_.weigeraar = &formulier_.Naam1; }
  [[nodiscard]] bool InNaam1() const { return formulier_.FocusVeld() == &formulier_.Naam1; }

  ProefFormulier formulier_;
};

TEST_F(FormulierFocusTest, NaarEenAnderVeldVerlaatEenKeerEnBetreedtEenKeer) {
  EXPECT_TRUE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_TRUE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "in Naam2"));
}

TEST_F(FormulierFocusTest, EenMislukteControleHoudtDeFocusEnVuurtEenKeer) {
  LaatWeigeren();
  EXPECT_FALSE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_TRUE(InNaam1());
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1"));
}

TEST_F(FormulierFocusTest, EenMislukteControleSliktDeKlikIn) {
  LaatWeigeren();
  EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
  EXPECT_FALSE(formulier_.Klik(formulier_.Vink));
  EXPECT_FALSE(formulier_.Dubbelklik(formulier_.Kop));
  EXPECT_FALSE(formulier_.Kies(formulier_.Lijst1, 1));
  EXPECT_FALSE(formulier_.Vink.Gekozen());
  EXPECT_EQ(formulier_.Lijst1.Index(), -1);
  EXPECT_TRUE(InNaam1());
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "uit Naam1", "uit Naam1", "uit Naam1"));
}

TEST_F(FormulierFocusTest, NaHerstelGaatDeKlikDoor) {
  LaatWeigeren();
  EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
  formulier_.weigeraar = nullptr;
  EXPECT_TRUE(formulier_.Klik(formulier_.OKButton));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "uit Naam1", "klik OKButton"));
}

TEST_F(FormulierFocusTest, DeTerugknopLooptLangsGeenControle) {
  LaatWeigeren();
  EXPECT_TRUE(formulier_.Klik(formulier_.BackButton));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik BackButton"));
}

TEST_F(FormulierFocusTest, CancelButtonNaastBackButtonLooptOokLangsGeenControle) {
  Knop cancel(formulier_, "CancelButton", "&Annuleren");
  LaatWeigeren();
  EXPECT_TRUE(formulier_.Klik(cancel));
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierFocusTest, BlijftHetFormulierNaDeTerugknopDanKomtDeControleNog) {
  EXPECT_TRUE(formulier_.Klik(formulier_.BackButton));
  EXPECT_TRUE(InNaam1());
  LaatWeigeren();
  EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik BackButton", "uit Naam1"));
}

TEST_F(FormulierFocusTest, TabNaarDeTerugknopIsGewoonVerlaten) {
  LaatWeigeren();
  EXPECT_FALSE(formulier_.GaNaar(formulier_.BackButton));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1"));
}

TEST_F(FormulierFocusTest, EenMenukeuzeVerlaatGeenVeld) {
  LaatWeigeren();
  EXPECT_TRUE(formulier_.Klik(formulier_.Menu1));
  EXPECT_TRUE(InNaam1());
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik Menu1"));
}

TEST_F(FormulierFocusTest, EenKlikbaarLabelVerlaatHetVeldEnNeemtGeenFocus) {
  EXPECT_TRUE(formulier_.Klik(formulier_.Kop));
  EXPECT_EQ(formulier_.FocusVeld(), nullptr);
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "klik Kop"));
}

TEST_F(FormulierFocusTest, TypenNaEenKlikZonderFocusBrengtDeControleTerug) {
  formulier_.Klik(formulier_.Kop);
  formulier_.Typ(formulier_.Naam1, 'a');
  EXPECT_TRUE(InNaam1());
  formulier_.GaNaar(formulier_.Naam2);
  EXPECT_THAT(formulier_.dagboek,
              ElementsAre("uit Naam1", "klik Kop", "anders Naam1", "uit Naam1", "in Naam2"));
}

TEST_F(FormulierFocusTest, VerlatenVoorNietsLaatDeFocusNergens) {
  EXPECT_TRUE(formulier_.VerlaatVeld());
  EXPECT_EQ(formulier_.FocusVeld(), nullptr);
  EXPECT_TRUE(formulier_.VerlaatVeld());
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1"));
}

TEST_F(FormulierFocusTest, FocusVanuitCodeDoetGeenControleMaarWelHetBetreden) {
  LaatWeigeren();
  formulier_.ZetFocus(formulier_.Naam2);
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Naam2);
  EXPECT_THAT(formulier_.dagboek, ElementsAre("in Naam2"));
}

TEST_F(FormulierFocusTest, FocusVanuitCodeNaarWatNietKanDoetNiets) {
  formulier_.ZetFocus(formulier_.Kop);
  formulier_.Naam2.ZetZichtbaar(false);
  formulier_.ZetFocus(formulier_.Naam2);
  EXPECT_TRUE(InNaam1());
}

// What a field kept when it was entered (an old text to compare with) must outlive a refusal.
TEST_F(FormulierFocusTest, FocusVanuitCodeNaarWieHemAlHeeftBetreedtNietNogEens) {
  formulier_.ZetFocus(formulier_.Naam1);
  EXPECT_TRUE(InNaam1());
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.ZetFocus(formulier_.Naam1);
    return false;
  });
  EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
  EXPECT_TRUE(InNaam1());
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierFocusTest, GaatNietNaarWatGeenFocusKanHebben) {
  formulier_.Naam2.ZetAlleenLezen(true);
  EXPECT_FALSE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_FALSE(formulier_.GaNaar(formulier_.Kop));
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierFocusTest, EenControleDieZelfDeFocusVerzetWint) {
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.ZetFocus(formulier_.OKButton);
    return true;
  });
  EXPECT_FALSE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.OKButton);
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierFocusTest, EenControleDieDeFocusVerzetLaatDeKlikDoorgaan) {
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.ZetFocus(formulier_.Naam2);
    return true;
  });
  EXPECT_TRUE(formulier_.Klik(formulier_.OKButton));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("in Naam2", "klik OKButton"));
}

TEST_F(FormulierFocusTest, EenMislukteControleDieDeFocusVerzetHoudtHemToch) {
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.ZetFocus(formulier_.Naam2);
    return false;
  });
  EXPECT_FALSE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_TRUE(InNaam1());
}

// A box that the check shows takes the toolkit's focus away: the binder then says that the field
// is left, once more.
TEST_F(FormulierFocusTest, WatTijdensEenControleBinnenkomtWordtIngeslikt) {
  int keer = 0;
  formulier_.Naam1.BijVerlaten([&] {
    ++keer;
    EXPECT_FALSE(formulier_.VerlaatVeld());
    EXPECT_FALSE(formulier_.GaNaar(formulier_.Naam2));
    EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
    EXPECT_TRUE(formulier_.Controleer(formulier_.Naam1));
    return true;
  });
  EXPECT_TRUE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_EQ(keer, 1);
  EXPECT_THAT(formulier_.dagboek, ElementsAre("in Naam2"));
}

TEST_F(FormulierFocusTest, EenControleDieSluitHoudtDeRestTegen) {
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.Sluit();
    return true;
  });
  formulier_.OKButton.BijBetreden([&] { formulier_.Noteer("in", formulier_.OKButton); });
  for (Bediening* doel :
       {static_cast<Bediening*>(&formulier_.OKButton), static_cast<Bediening*>(&formulier_.Vink),
        static_cast<Bediening*>(&formulier_.Kop)}) {
    formulier_.Start();
    EXPECT_FALSE(formulier_.Klik(*doel));
    EXPECT_TRUE(formulier_.Gesloten());
    EXPECT_THAT(formulier_.dagboek, IsEmpty());
    formulier_.Start();
    EXPECT_FALSE(formulier_.Dubbelklik(*doel));
    EXPECT_THAT(formulier_.dagboek, IsEmpty());
  }
  EXPECT_FALSE(formulier_.Vink.Gekozen());
}

TEST_F(FormulierFocusTest, EenControleDieSluitHoudtHetBetredenTegen) {
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.Sluit();
    return true;
  });
  EXPECT_FALSE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierFocusTest, EenControleKanDeKnopUitzettenWaarDeKlikHeenGing) {
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.OKButton.ZetIngeschakeld(false);
    return true;
  });
  EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierFocusTest, EenControleKanHetVeldVerbergenWaarDeFocusHeenGing) {
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.Naam2.ZetZichtbaar(false);
    return true;
  });
  EXPECT_FALSE(formulier_.GaNaar(formulier_.Naam2));
  EXPECT_EQ(formulier_.FocusVeld(), nullptr);
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierFocusTest, EenVerborgenVeldWordtNietMeerGecontroleerd) {
  LaatWeigeren();
  formulier_.Naam1.ZetZichtbaar(false);
  EXPECT_TRUE(formulier_.Klik(formulier_.OKButton));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik OKButton"));
}

TEST_F(FormulierFocusTest, ControlerenVanuitCodeLaatDeFocusStaan) {
  LaatWeigeren();
  EXPECT_FALSE(formulier_.Controleer(formulier_.Naam1));
  EXPECT_TRUE(formulier_.Controleer(formulier_.Naam2));
  EXPECT_TRUE(formulier_.Controleer(formulier_.OKButton));
  EXPECT_TRUE(InNaam1());
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "uit Naam2"));
}

TEST_F(FormulierFocusTest, EenKlikDieBetreedtEnSluitVuurtDeKlikNiet) {
  formulier_.OKButton.BijBetreden([&] { formulier_.Sluit(); });
  EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1"));
}

}  // namespace
}  // namespace lb77
