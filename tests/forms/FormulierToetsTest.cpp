// Keys: Enter and its kinds, Escape, Tab, the blank, the arrows in a list, and typing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "forms/ProefFormulier.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FormulierToetsTest : public ::testing::Test {
 protected:
  FormulierToetsTest() { formulier_.Start(); }

  // Presses a key where the focus is. True when the form dealt with it.
  bool Druk(int code, bool shift = false) {
    return formulier_.Toets(formulier_.FocusVeld(), {.code = code, .shift = shift});
  }
  void Typ(Invoerveld& veld, std::string_view tekst) {
    for (const char teken : tekst) formulier_.Typ(veld, teken);
  }

  ProefFormulier formulier_;
};

TEST_F(FormulierToetsTest, EnterDoorGaatNaarDeVolgende) {
  EXPECT_TRUE(Druk(toets::kEnter));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "in Naam2"));
}

TEST_F(FormulierToetsTest, EnterDoorBlijftNaEenMislukteControle) {
  formulier_.weigeraar = &formulier_.Naam1;
  EXPECT_TRUE(Druk(toets::kEnter));
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Naam1);
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1"));
}

TEST_F(FormulierToetsTest, EnterControleControleertEnBlijft) {
  formulier_.Naam1.ZetEnter(EnterSoort::Controle);
  EXPECT_TRUE(Druk(toets::kEnter));
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Naam1);
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1"));
}

TEST_F(FormulierToetsTest, EnterControleEnLaterVerlatenZijnTweeOorzaken) {
  formulier_.Naam1.ZetEnter(EnterSoort::Controle);
  formulier_.weigeraar = &formulier_.Naam1;
  Druk(toets::kEnter);
  EXPECT_FALSE(formulier_.Klik(formulier_.OKButton));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "uit Naam1"));
}

TEST_F(FormulierToetsTest, EnterControleDieDeFocusVerzetBlijftVerzet) {
  formulier_.Naam1.ZetEnter(EnterSoort::Controle);
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.ZetFocus(formulier_.Naam2);
    return true;
  });
  Druk(toets::kEnter);
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Naam2);
}

TEST_F(FormulierToetsTest, EnterControleDieMisluktHoudtDeFocusOokAlsZijHemVerzette) {
  formulier_.Naam1.ZetEnter(EnterSoort::Controle);
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.ZetFocus(formulier_.Naam2);
    return false;
  });
  Druk(toets::kEnter);
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Naam1);
}

TEST_F(FormulierToetsTest, EnterOKDruktOpOKNaEenControle) {
  formulier_.Naam1.ZetEnter(EnterSoort::OK);
  EXPECT_TRUE(Druk(toets::kEnter));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "klik OKButton"));
}

TEST_F(FormulierToetsTest, EnterOKWordtIngesliktDoorEenMislukteControle) {
  formulier_.Naam1.ZetEnter(EnterSoort::OK);
  formulier_.weigeraar = &formulier_.Naam1;
  EXPECT_TRUE(Druk(toets::kEnter));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1"));
}

TEST_F(FormulierToetsTest, NumEnterDoetWatEnterDoet) {
  EXPECT_TRUE(Druk(toets::kNumEnter));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("uit Naam1", "in Naam2"));
}

TEST_F(FormulierToetsTest, EnterOpEenKnopDruktHem) {
  formulier_.ZetFocus(formulier_.OKButton);
  EXPECT_TRUE(Druk(toets::kEnter));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik OKButton"));
}

TEST_F(FormulierToetsTest, EnterOpEenVinkjeGaatVerderEnZetNietsOm) {
  formulier_.ZetFocus(formulier_.Vink);
  EXPECT_TRUE(Druk(toets::kEnter));
  EXPECT_FALSE(formulier_.Vink.Gekozen());
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Links);
}

TEST_F(FormulierToetsTest, EnterZonderFocusDoetNiets) {
  formulier_.VerlaatVeld();
  formulier_.dagboek.clear();
  EXPECT_FALSE(Druk(toets::kEnter));
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierToetsTest, EnterInEenTekstblokIsVoorHetVeldZelf) {
  Tekstblok blok(formulier_, "Blok");
  formulier_.ZetFocus(blok);
  EXPECT_FALSE(Druk(toets::kEnter));
  formulier_.Typ(blok, '\n');
  EXPECT_EQ(blok.Tekst(), "\n");
}

TEST_F(FormulierToetsTest, EscapeDoetWatDeTerugknopDoetZonderControle) {
  formulier_.weigeraar = &formulier_.Naam1;
  EXPECT_TRUE(Druk(toets::kEscape));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik BackButton"));
}

TEST_F(FormulierToetsTest, EenAfgehandeldeToetsDoetVerderNiets) {
  formulier_.Naam1.BijToets([](ToetsGebeurtenis& toets) { toets.verwerkt = true; });
  EXPECT_TRUE(Druk(toets::kEscape));
  EXPECT_TRUE(Druk(toets::kEnter));
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierToetsTest, EenVeldKanEenToetsInEenAndereVeranderen) {
  formulier_.Naam1.BijToets([](ToetsGebeurtenis& toets) {
    if (toets.code == toets::kF10) toets.code = toets::kEscape;
  });
  EXPECT_TRUE(Druk(toets::kF10));
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik BackButton"));
}

TEST_F(FormulierToetsTest, EenToetsKomtBijHetVeldEnDanBijHetFormulier) {
  EXPECT_FALSE(formulier_.Toets(&formulier_.Naam1, ToetsVanTeken('a')));
  EXPECT_FALSE(formulier_.Toets(nullptr, ToetsVanTeken('a')));
  EXPECT_EQ(formulier_.toetsen, 2);
  formulier_.Naam1.BijToets([](ToetsGebeurtenis& toets) { toets.verwerkt = true; });
  EXPECT_TRUE(formulier_.Toets(&formulier_.Naam1, ToetsVanTeken('a')));
  EXPECT_EQ(formulier_.toetsen, 2);
}

TEST_F(FormulierToetsTest, EenToetsDieSluitIsAfgehandeldEnGaatNietVerder) {
  formulier_.Naam1.BijToets([&](ToetsGebeurtenis&) { formulier_.Sluit(); });
  EXPECT_TRUE(formulier_.Toets(&formulier_.Naam1, ToetsVanTeken('a')));
  EXPECT_EQ(formulier_.toetsen, 0);
}

TEST_F(FormulierToetsTest, TabLooptHeenEnTerugOverWatBruikbaarIs) {
  formulier_.Naam2.ZetIngeschakeld(false);
  EXPECT_TRUE(Druk(toets::kTab));
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Lijst1);
  EXPECT_TRUE(Druk(toets::kTab, true));
  EXPECT_TRUE(Druk(toets::kTab, true));
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.BackButton);
  EXPECT_TRUE(Druk(toets::kTab));
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Naam1);
}

TEST_F(FormulierToetsTest, TabZonderFocusBegintVooraanOfAchteraan) {
  EXPECT_EQ(formulier_.Buur(nullptr, 1), &formulier_.Naam1);
  EXPECT_EQ(formulier_.Buur(nullptr, -1), &formulier_.BackButton);
}

TEST(Formulier, HeeftZonderAndereVeldenGeenBuur) {
  Formulier formulier("Kaal", "");
  EXPECT_EQ(formulier.Buur(nullptr, 1), nullptr);
  const Tekstvak enige(formulier, "Enige");
  EXPECT_EQ(formulier.Buur(&enige, 1), nullptr);
}

TEST_F(FormulierToetsTest, SpatieDruktKnoppenVinkjesEnOpties) {
  for (Bediening* doel :
       {static_cast<Bediening*>(&formulier_.Vink), static_cast<Bediening*>(&formulier_.Rechts),
        static_cast<Bediening*>(&formulier_.OKButton)}) {
    formulier_.ZetFocus(*doel);
    EXPECT_TRUE(Druk(toets::kSpatie));
  }
  EXPECT_TRUE(formulier_.Vink.Gekozen());
  EXPECT_TRUE(formulier_.Rechts.Gekozen());
  EXPECT_THAT(formulier_.dagboek, ElementsAre("klik Vink", "klik Rechts", "klik OKButton"));
}

TEST_F(FormulierToetsTest, SpatieInEenVeldIsEenTeken) {
  EXPECT_FALSE(formulier_.Toets(&formulier_.Naam1, ToetsVanTeken(' ')));
}

TEST_F(FormulierToetsTest, PijlenKiezenInEenLijst) {
  formulier_.ZetFocus(formulier_.Lijst1);
  const auto na = [&](int code) {
    EXPECT_TRUE(Druk(code));
    return formulier_.Lijst1.Index();
  };
  EXPECT_EQ(na(toets::kOmlaag), 0);
  EXPECT_EQ(na(toets::kOmlaag), 1);
  EXPECT_EQ(na(toets::kEnd), 2);
  EXPECT_EQ(na(toets::kOmlaag), 2);
  EXPECT_EQ(na(toets::kOmhoog), 1);
  EXPECT_EQ(na(toets::kHome), 0);
  EXPECT_EQ(na(toets::kOmhoog), 0);
}

TEST_F(FormulierToetsTest, PijlenInEenLegeLijstGevenGeenGebeurtenis) {
  formulier_.Lijst1.MaakLeeg();
  formulier_.ZetFocus(formulier_.Lijst1);
  formulier_.dagboek.clear();
  EXPECT_TRUE(Druk(toets::kOmhoog));
  EXPECT_TRUE(Druk(toets::kOmlaag));
  EXPECT_EQ(formulier_.Lijst1.Index(), -1);
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(FormulierToetsTest, PijlenInEenVeldZijnVoorHetVeldZelf) {
  EXPECT_FALSE(Druk(toets::kOmlaag));
  EXPECT_FALSE(Druk(toets::kHome));
}

TEST_F(FormulierToetsTest, TypenHoudtOpBijDeMaximumlengte) {
  Typ(formulier_.Naam1, "abcdefg");
  EXPECT_EQ(formulier_.Naam1.Tekst(), "abcde");
  Typ(formulier_.Naam2, "abcdefg");
  EXPECT_EQ(formulier_.Naam2.Tekst(), "abcdefg");
}

TEST_F(FormulierToetsTest, TypenGaatDoorHetFilter) {
  formulier_.Naam1.ZetFilter(AlleenCijfers);
  Typ(formulier_.Naam1, "1a2 b3");
  EXPECT_EQ(formulier_.Naam1.Tekst(), "123");
  formulier_.Naam2.ZetFilter(InHoofdletters);
  Typ(formulier_.Naam2, "zo\xEB");
  EXPECT_EQ(formulier_.Naam2.Tekst(), "ZOË"_w);
}

TEST_F(FormulierToetsTest, EenGeweigerdTekenIsGeenWijziging) {
  formulier_.Naam1.ZetFilter(AlleenCijfers);
  Typ(formulier_.Naam1, "a");
  EXPECT_FALSE(formulier_.Gewijzigd());
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

}  // namespace
}  // namespace lb77
