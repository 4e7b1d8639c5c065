// The viewer's page.
#include <gmock/gmock.h>

#include <QFontInfo>
#include <QScrollBar>

#include "Vensterproef.h"
#include "forms/Formulier.h"
#include "qt/Bladzijde.h"

namespace lb77 {
namespace {

class Leesvorm final : public Formulier {
 public:
  Leesvorm() : Formulier("Leesvorm", "Lezen") {
    BackButton.BijKlik([this] { Sluit(); });
    ZetEersteVeld(BackButton);
    Zet("regel ");
  }
  void Zet(const std::string& tekst) {
    std::vector<std::string> regels;
    regels.reserve(kBladRegels);
    for (int i = 0; i < kBladRegels; ++i) regels.push_back(tekst + static_cast<char>('a' + i % 26));
    UitvoerBox.ZetRegels(regels);
  }

  Tekstpagina UitvoerBox{*this, "UitvoerBox"};
  Knop BackButton{*this, "BackButton", "&Terug"};
  std::vector<int> toetsen;

 protected:
  void BijToets(ToetsGebeurtenis& toets) override {
    toetsen.push_back(toets.code);
    if (toets.code == toets::kPageDown) Zet("volgende ");
  }
};

class BladzijdeTest : public Vensterproef {
 protected:
  Leesvorm vorm;
  Bladzijde& Blad() { return dynamic_cast<Bladzijde&>(Vind("UitvoerBox")); }
  int Plek() { return Blad().verticalScrollBar()->value(); }
  void Lees(std::vector<std::function<void()>> stappen) {
    stappen.emplace_back([this] { QTest::mouseClick(&Vind("BackButton"), Qt::LeftButton); });
    Voer(vorm, std::move(stappen));
  }
};

TEST_F(BladzijdeTest, ToontZijnRegelsInEenVasteLetterEnVultHetScherm) {
  Lees({[&] {
    EXPECT_TRUE(Blad().toPlainText().startsWith("regel a\nregel b\n"));
    EXPECT_TRUE(QFontInfo(Blad().font()).fixedPitch());
    EXPECT_TRUE(Blad().isReadOnly());
    EXPECT_TRUE(Bovenste().isMaximized());
  }});
}

TEST_F(BladzijdeTest, TachtigKolommenZijnInBeeld) {
  vorm.UitvoerBox.ZetRegels({std::string(kBladKolommen, 'W')});
  Lees({[&] { EXPECT_EQ(Blad().horizontalScrollBar()->maximum(), 0); }});
}

TEST_F(BladzijdeTest, ToetsenRollenHetBladVoorZeBijHetFormulierKomen) {
  Lees({[&] {
    Toets(Qt::Key_Down);
    EXPECT_EQ(Plek(), 1);
    Toets(Qt::Key_Up);
    EXPECT_EQ(Plek(), 0);
    Toets(Qt::Key_PageDown);
    EXPECT_GT(Plek(), 10);
    Toets(Qt::Key_PageUp);
    Toets(Qt::Key_End);
    EXPECT_EQ(Plek(), Blad().verticalScrollBar()->maximum());
    EXPECT_THAT(vorm.toetsen, testing::IsEmpty());
    Toets(Qt::Key_Down);
    EXPECT_THAT(vorm.toetsen, testing::ElementsAre(toets::kOmlaag));
    Toets(Qt::Key_Home);
    EXPECT_EQ(Plek(), 0);
  }});
}

TEST_F(BladzijdeTest, DeVolgendeBladzijdeBegintBovenaan) {
  Lees({[&] {
    Toets(Qt::Key_End);
    Toets(Qt::Key_PageDown);
    EXPECT_TRUE(Blad().toPlainText().startsWith("volgende a"));
    EXPECT_EQ(Plek(), 0);
  }});
}

TEST_F(BladzijdeTest, DeMuisMagTekstKiezenZonderDeFocusTeVerzetten) {
  Lees({[&] {
    QTest::mouseClick(Blad().viewport(), Qt::LeftButton);
    EXPECT_EQ(Focus(), "UitvoerBox");
    EXPECT_EQ(vorm.FocusVeld(), &vorm.BackButton);
    Toets(Qt::Key_F8);
    EXPECT_THAT(vorm.toetsen, testing::ElementsAre(toets::kF8));
  }});
}

}  // namespace
}  // namespace lb77
