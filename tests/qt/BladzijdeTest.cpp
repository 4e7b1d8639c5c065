// The viewer's page.
#include <QtTest/qtestspontaneevent.h>
#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>

#include "Vensterproef.h"
#include "forms/Bladeraar.h"
#include "forms/Formulier.h"
#include "forms/Leesformulier.h"
#include "qt/Bladzijde.h"
#include "qt/QtGesprek.h"
#include "qt/Vertaling.h"

namespace lb77 {
namespace {

class Leesvorm final : public Formulier, public Bladeraar, public Leesformulier {
 public:
  Leesvorm() : Formulier("Leesvorm", "Lezen") {
    BackButton.BijKlik([this] { Sluit(); });
    SaveButton.BijKlik([this] { stappen.push_back(99); });
    ZetEersteVeld(BackButton);
    Zet("regel ");
  }
  void Zet(const std::string& tekst) {
    std::vector<std::string> regels;
    regels.reserve(kBladRegels);
    for (int i = 0; i < kBladRegels; ++i) regels.push_back(tekst + static_cast<char>('a' + i % 26));
    UitvoerBox.ZetRegels(regels);
  }

  void Blader(int stap) override { stappen.push_back(stap); }
  [[nodiscard]] Bediening* BijCtrl(char letter) override {
    if (letter == 'F') return &ZoekTekst;
    return letter == 'S' ? &SaveButton : nullptr;
  }

  Tekstvak ZoekTekst{*this, "ZoekTekst", "Zoek:", 20};
  Vindpagina UitvoerBox{*this, "UitvoerBox"};
  Knop SaveButton{*this, "SaveButton", "Opslaan"};
  std::vector<int> stappen;
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

TEST_F(BladzijdeTest, DeLetterDieDeGebruikerKoosKomtTerug) {
  const QTemporaryDir map;
  const auto lees = [&](const std::function<void(qreal punten)>& doe) {
    QtGesprek metMap(PadVanQt(map.path()));
    Leesvorm lezer;
    QTimer::singleShot(0, qApp, [&] {
      ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow(); }));
      doe(Blad().font().pointSizeF());
      Toets(Qt::Key_Escape);
    });
    metMap.ToonModaal(lezer);
  };
  qreal begin = 0;
  lees([&](qreal punten) {
    begin = punten;
    Toets(Qt::Key_Plus, Qt::ControlModifier);
    Toets(Qt::Key_Plus, Qt::ControlModifier);
  });
  lees([&](qreal punten) {
    EXPECT_EQ(punten, begin + 2);
    Toets(Qt::Key_0, Qt::ControlModifier);
  });
  lees([&](qreal punten) { EXPECT_EQ(punten, begin); });
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

// Turns the wheel by a part of a notch over a widget.
void Draai(QWidget& waar, int hoeveel, Qt::KeyboardModifiers met = Qt::NoModifier) {
  const QPointF plek(waar.width() / 2.0, waar.height() / 2.0);
  QWheelEvent wiel(plek, waar.mapToGlobal(plek), {}, QPoint(0, hoeveel), Qt::NoButton, met,
                   Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&wiel);  // only the user's own goes on to the window
  qApp->notify(&waar, &wiel);
}

TEST_F(BladzijdeTest, HetWielRoltHetBladEnSlaatAanDeRandOm) {
  Lees({[&] {
    Draai(*Blad().viewport(), -120);
    EXPECT_GT(Plek(), 0);
    EXPECT_THAT(vorm.stappen, testing::IsEmpty());
    Toets(Qt::Key_End);
    Draai(*Blad().viewport(), -120);
    EXPECT_THAT(vorm.stappen, testing::ElementsAre(1));
    Toets(Qt::Key_Home);
    Draai(*Blad().viewport(), 120);
    EXPECT_THAT(vorm.stappen, testing::ElementsAre(1, -1));
  }});
}

TEST_F(BladzijdeTest, EenFijnWielBladertPasNaEenHeleTik) {
  Lees({[&] {
    for (int i = 0; i < 3; ++i) Draai(Bovenste(), -40);
    EXPECT_THAT(vorm.stappen, testing::ElementsAre(1));
    Draai(Bovenste(), -80);
    Draai(Bovenste(), 80);
    EXPECT_THAT(vorm.stappen, testing::ElementsAre(1));
  }});
}

TEST_F(BladzijdeTest, CtrlEnEenLetterDruktEenKnopOfGaatNaarEenVeld) {
  Lees({[&] {
    Toets(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(vorm.stappen, testing::ElementsAre(99));
    Toets(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Focus(), "ZoekTekst");
    EXPECT_EQ(vorm.FocusVeld(), &vorm.ZoekTekst);
  }});
}

TEST_F(BladzijdeTest, CtrlCKopieertHetGekozeneEnAndersDeBladzijde) {
  Lees({[&] {
    Toets(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), Blad().toPlainText());
    vorm.UitvoerBox.Merk({1, 2, 3});
    Toets(Qt::Key_F8);
    Toets(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QString("gel"));
    Toets(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Blad().textCursor().selectedText().size(), Blad().toPlainText().size());
  }});
}

TEST_F(BladzijdeTest, InHetZoekveldIsCtrlCVanHetVeld) {
  Lees({[&] {
    QApplication::clipboard()->setText("vooraf");
    Toets(Qt::Key_F, Qt::ControlModifier);
    Typ("abc");
    Toets(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Vind<QLineEdit>("ZoekTekst").selectedText(), QString("abc"));
    Toets(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QString("abc"));
    Toets(Qt::Key_Home);
    EXPECT_EQ(Vind<QLineEdit>("ZoekTekst").cursorPosition(), 0);
  }});
}

TEST_F(BladzijdeTest, CtrlPlusMinEnNulZettenDeGrootteVanDeLetter) {
  Lees({[&] {
    const qreal eerst = Blad().font().pointSizeF();
    Toets(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Blad().font().pointSizeF(), eerst + 1);
    Draai(*Blad().viewport(), 120, Qt::ControlModifier);
    EXPECT_EQ(Blad().font().pointSizeF(), eerst + 2);
    Toets(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Blad().font().pointSizeF(), eerst + 1);
    EXPECT_TRUE(QFontInfo(Blad().font()).fixedPitch());
    Toets(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Blad().font().pointSizeF(), eerst);
    for (int i = 0; i < 60; ++i) Toets(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Blad().font().pointSizeF(), 6);
    for (int i = 0; i < 60; ++i) Toets(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Blad().font().pointSizeF(), 40);
    EXPECT_THAT(vorm.stappen, testing::IsEmpty());
  }});
}

TEST_F(BladzijdeTest, WatGevondenIsStaatGekleurdInBeeld) {
  Lees({[&] {
    vorm.UitvoerBox.Merk({60, 0, 5});
    Toets(Qt::Key_F8);
    ASSERT_EQ(Blad().extraSelections().size(), 1);
    EXPECT_EQ(Blad().extraSelections().first().cursor.selectedText(), QString("regel"));
    EXPECT_TRUE(Blad().viewport()->rect().contains(Blad().cursorRect()));
    EXPECT_GT(Plek(), 0);
    vorm.Zet("ander ");
    Toets(Qt::Key_F8);
    EXPECT_EQ(Blad().textCursor().selectedText(), QString("ander"));
    vorm.UitvoerBox.Merk({});
    Toets(Qt::Key_F8);
    EXPECT_FALSE(Blad().textCursor().hasSelection());
  }});
}

}  // namespace
}  // namespace lb77
