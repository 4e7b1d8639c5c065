// Each kind of control shows, and follows the form.
#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>

#include "Proefvorm.h"
#include "Vensterproef.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

using testing::ElementsAre;

class ElementTest : public Vensterproef {
 protected:
  Proefvorm vorm{gesprek};
  // Shows the form and runs `kijk` in it.
  void Bekijk(const std::function<void()>& kijk) {
    Voer(vorm, {kijk, [this] { QTest::mouseClick(&Vind("BackButton"), Qt::LeftButton); }});
  }
  // Changes the form from code, as a handler does, and lets the window follow.
  void Verander(std::function<void()> doe) {
    vorm.bijOK = std::move(doe);
    QTest::mouseClick(&Vind("OKButton"), Qt::LeftButton);
  }
};

TEST_F(ElementTest, EenTekstvakToontZijnTekstInUnicode) {
  vorm.Een.ZetTekst("geërfd €"_w);
  Bekijk([&] { EXPECT_EQ(Vind<QLineEdit>("Een").text(), QString::fromUtf8("geërfd €")); });
}

TEST_F(ElementTest, TekstVanuitCodeIsTeZienEnGeeftGeenGebeurtenis) {
  Bekijk([&] {
    Verander([&] { vorm.Vrij.ZetTekst("nieuw"); });
    EXPECT_EQ(Vind<QLineEdit>("Vrij").text(), QString("nieuw"));
    EXPECT_THAT(vorm.log, ElementsAre("in Een", "controle Een", "in OKButton", "klik OKButton"));
  });
}

TEST_F(ElementTest, TekstBovenDeMaximumlengteIsHeelTeZien) {
  vorm.Een.ZetTekst("twaalf tekens");
  Bekijk([&] { EXPECT_EQ(Vind<QLineEdit>("Een").text(), QString("twaalf tekens")); });
}

TEST_F(ElementTest, TekstVanMeerRegelsHoudtZijnRegeleinden) {
  vorm.Blok.ZetTekst("een\ntwee");
  Bekijk([&] { EXPECT_EQ(Vind<QPlainTextEdit>("Blok").toPlainText(), QString("een\ntwee")); });
}

TEST_F(ElementTest, EenVeldOmTeLezenNeemtGeenFocusEnGeenTekst) {
  vorm.Lezen.ZetTekst("vast");
  Bekijk([&] {
    auto& veld = Vind<QLineEdit>("Lezen");
    EXPECT_TRUE(veld.isReadOnly());
    QTest::mouseClick(&veld, Qt::LeftButton);
    EXPECT_EQ(Focus(), "Een");
  });
}

TEST_F(ElementTest, EenPadvakHoudtEenPadDatNietTeTonenIs) {
  const std::filesystem::path pad(u8"/tmp/Łódź");
  vorm.Pad.ZetPad(pad);
  Bekijk([&] {
    QTest::mouseClick(&Vind("Pad"), Qt::LeftButton);
    EXPECT_EQ(Focus(), "Pad");
  });
  EXPECT_EQ(vorm.Pad.Pad(), pad);
}

TEST_F(ElementTest, EenPadvakBewaartEenGetyptPad) {
  Bekijk([&] {
    QTest::mouseClick(&Vind("Pad"), Qt::LeftButton);
    Typ("/data/geërfd");
  });
  EXPECT_EQ(vorm.Pad.Pad(), std::filesystem::path(u8"/data/geërfd"));
}

TEST_F(ElementTest, EenLabelToontZijnTekstZoalsDieIs) {
  Bekijk([&] { EXPECT_EQ(Vind<QLabel>("Uitleg").text(), QString("<b>Uitleg</b> & meer")); });
  EXPECT_EQ(vorm.Uitleg.Bijschrift(), "<b>Uitleg</b> & meer");
}

TEST_F(ElementTest, EenLabelMetEenAfhandelingKanWordenAangeklikt) {
  Bekijk([&] { QTest::mouseClick(&Vind("Klikbaar"), Qt::LeftButton); });
  EXPECT_THAT(vorm.log, testing::Contains("klik Klikbaar"));
}

TEST_F(ElementTest, EenVinkjeVolgtKliksEnCode) {
  Bekijk([&] {
    auto& vink = Vind<QCheckBox>("Vink");
    vink.click();
    EXPECT_TRUE(vorm.Vink.Gekozen());
    EXPECT_TRUE(vink.isChecked());
    Verander([&] { vorm.Vink.Zet(false); });
    EXPECT_FALSE(vink.isChecked());
  });
}

TEST_F(ElementTest, OptiesSluitenElkaarUit) {
  Bekijk([&] {
    Vind<QRadioButton>("Rood").click();
    Vind<QRadioButton>("Blauw").click();
    EXPECT_FALSE(Vind<QRadioButton>("Rood").isChecked());
    EXPECT_TRUE(Vind<QRadioButton>("Blauw").isChecked());
    Vind<QRadioButton>("Blauw").click();
    EXPECT_TRUE(Vind<QRadioButton>("Blauw").isChecked());
  });
  EXPECT_TRUE(vorm.Blauw.Gekozen());
}

TEST_F(ElementTest, PijlenLopenDoorDeOpties) {
  vorm.Rood.Zet(true);
  vorm.ZetEersteVeld(vorm.Rood);
  Bekijk([&] {
    Toets(Qt::Key_Down);
    EXPECT_EQ(Focus(), "Groen");
    Toets(Qt::Key_Up);
    Toets(Qt::Key_Up);
    EXPECT_EQ(Focus(), "Blauw");
  });
  EXPECT_TRUE(vorm.Blauw.Gekozen());
}

TEST_F(ElementTest, EenKeuzevakToontZijnRijenEnVolgtDeKeuze) {
  Bekijk([&] {
    auto& vak = Vind<QComboBox>("Vak");
    EXPECT_EQ(vak.count(), 3);
    EXPECT_EQ(vak.currentIndex(), -1);
    QTest::mouseClick(&Vind("Vrij"), Qt::LeftButton);
    vak.setCurrentIndex(2);
    emit vak.activated(2);
    EXPECT_EQ(vorm.Vak.Index(), 2);
    Verander([&] { vorm.Vak.ZetRijen({"anders"}); });
    EXPECT_EQ(vak.count(), 1);
    EXPECT_EQ(vak.currentIndex(), -1);
  });
}

TEST_F(ElementTest, PijlenKiezenInEenKeuzevak) {
  vorm.ZetEersteVeld(vorm.Vak);
  Bekijk([&] {
    Toets(Qt::Key_Down);
    Toets(Qt::Key_Down);
  });
  EXPECT_EQ(vorm.Vak.Tekst(), "een");
}

TEST_F(ElementTest, EenKeuzelijstVolgtMuisEnDubbelklik) {
  vorm.Kieslijst.ZetRijen({"aap", "noot", "mies"});
  Bekijk([&] {
    auto& lijst = Vind<QListWidget>("Kieslijst");
    const QPoint plek = lijst.visualItemRect(lijst.item(1)).center();
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, Qt::NoModifier, plek);
    EXPECT_EQ(vorm.Kieslijst.Tekst(), "noot");
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, Qt::NoModifier, plek);
  });
  EXPECT_THAT(vorm.log, testing::Contains("dubbel Kieslijst"));
}

TEST_F(ElementTest, EenRijDieHersteldIsWordtDoorgehaald) {
  vorm.Kieslijst.ZetRijen({"aap", "[hersteld] noot", "mies [hersteld] "});
  Bekijk([&] {
    const auto doorgehaald = [this] {
      auto& lijst = Vind<QListWidget>("Kieslijst");
      std::vector<bool> uit;
      for (int rij = 0; rij < lijst.count(); ++rij) {
        uit.push_back(lijst.item(rij)->font().strikeOut());
      }
      return uit;
    };
    EXPECT_THAT(doorgehaald(), ElementsAre(false, true, false));
    Verander([&] { vorm.Kieslijst.ZetRijen({"[hersteld] aap", "noot"}); });
    EXPECT_THAT(doorgehaald(), ElementsAre(true, false));
  });
}

TEST_F(ElementTest, DeFocusAlleenKiestNietsInEenKeuzelijst) {
  vorm.Kieslijst.ZetRijen({"aap", "noot", "mies"});
  vorm.ZetEersteVeld(vorm.Vak);
  Bekijk([&] {
    Toets(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "Kieslijst");
    EXPECT_EQ(Vind<QListWidget>("Kieslijst").currentRow(), -1);
    EXPECT_EQ(vorm.Kieslijst.Index(), -1);
    Toets(Qt::Key_Down);
    EXPECT_EQ(vorm.Kieslijst.Tekst(), "aap");
    EXPECT_EQ(Vind<QListWidget>("Kieslijst").selectedItems().size(), 1);
  });
  EXPECT_EQ(std::count(vorm.log.begin(), vorm.log.end(), "wijzig Kieslijst aap"), 1);
}

TEST_F(ElementTest, DeTweedeDrukVanEenDubbelklikOpEenLabelIsGeenKlik) {
  vorm.Klikbaar.BijDubbelklik([&] { vorm.log.emplace_back("dubbel"); });
  Bekijk([&] {
    QTest::mouseClick(&Vind("Klikbaar"), Qt::LeftButton);
    QTest::mouseDClick(&Vind("Klikbaar"), Qt::LeftButton);
    QTest::mouseRelease(&Vind("Klikbaar"), Qt::LeftButton);
  });
  EXPECT_EQ(std::count(vorm.log.begin(), vorm.log.end(), "klik Klikbaar"), 1);
  EXPECT_EQ(std::count(vorm.log.begin(), vorm.log.end(), "dubbel"), 1);
}

TEST_F(ElementTest, EenWaardeStaatAchterZijnPrompt) {
  vorm.Stand.ZetTekst("12");
  Bekijk([&] { EXPECT_EQ(Vind<QLabel>("Stand").text(), QString("12")); });
}

TEST_F(ElementTest, VlaggenEnBijschriftenVolgenHetFormulier) {
  Bekijk([&] {
    Verander([&] {
      vorm.Vrij.ZetIngeschakeld(false);
      vorm.Vink.ZetZichtbaar(false);
      vorm.OKButton.ZetBijschrift("&Verder");
      vorm.ZetTitel("Anders");
    });
    EXPECT_FALSE(Vind("Vrij").isEnabled());
    EXPECT_FALSE(Vind("Vink").isVisible());
    EXPECT_EQ(Vind<QPushButton>("OKButton").text(), QString("&Verder"));
    EXPECT_EQ(Bovenste().windowTitle(), QString("Anders"));
  });
}

TEST_F(ElementTest, DeLeesnaamIsDePromptOfHetBijschrift) {
  Bekijk([&] {
    EXPECT_EQ(Vind("Een").accessibleName(), QString("Eerste veld:"));
    EXPECT_EQ(Vind("OKButton").accessibleName(), QString("OK"));
    EXPECT_EQ(Vind("PersNr(0)").accessibleName(), QString("Nr"));
    EXPECT_EQ(Vind("PersNr(1)").accessibleName(), QString("Nr 2"));
  });
}

TEST_F(ElementTest, DeLeesnaamVanEenWaardeHeeftDeWaarde) {
  Bekijk([&] {
    EXPECT_EQ(Vind("Stand").accessibleName(), QString("Stand:"));
    Verander([&] { vorm.Stand.ZetTekst("7 van 9"); });
    EXPECT_EQ(Vind("Stand").accessibleName(), QString("Stand: 7 van 9"));
    Verander([&] { vorm.Stand.ZetBijschrift(""); });
    EXPECT_EQ(Vind("Stand").accessibleName(), QString("7 van 9"));
    Verander([&] { vorm.Stand.ZetTekst(""); });
    EXPECT_EQ(Vind("Stand").accessibleName(), QString());
    Verander([&] { vorm.Stand.ZetLeesnaam("Hoever"); });
    EXPECT_EQ(Vind("Stand").accessibleName(), QString("Hoever"));
  });
}

TEST_F(ElementTest, EenLeegLabelHeeftGeenNaam) {
  Bekijk([&] {
    EXPECT_EQ(Vind("Klikbaar").accessibleName(), QString("Klik hier"));
    Verander([&] { vorm.Klikbaar.ZetBijschrift(""); });
    EXPECT_EQ(Vind("Klikbaar").accessibleName(), QString());
  });
}

TEST_F(ElementTest, EenLijstIsZoBreedAlsHaarBreedsteRij) {
  vorm.Kieslijst.ZetRijen({"kort", std::string(80, 'n'), "ook kort"});
  Bekijk([&] {
    const QScrollBar& balk = *Vind<QListWidget>("Kieslijst").horizontalScrollBar();
    EXPECT_EQ(balk.maximum(), 0);
    const int breed = Bovenste().width();
    Verander([&] { vorm.Kieslijst.ZetRijen({"kort", std::string(95, 'n')}); });
    QTest::qWait(20);
    EXPECT_EQ(balk.maximum(), 0);
    EXPECT_GT(Bovenste().width(), breed);
  });
}

TEST_F(ElementTest, EenRijBrederDanHetSchermKanOpzijWordenGerold) {
  Bekijk([&] {
    Bovenste().move(500, 10);
    Verander([&] { vorm.Kieslijst.ZetRijen({"kort", std::string(300, 'n')}); });
    QTest::qWait(20);
    const auto& lijst = Vind<QListWidget>("Kieslijst");
    EXPECT_GT(lijst.horizontalScrollBar()->maximum(), 0);
    EXPECT_GE(lijst.horizontalScrollBar()->maximum() + lijst.viewport()->width(),
              lijst.fontMetrics().horizontalAdvance(QString(300, u'n')));
    const QRect scherm = Bovenste().screen()->availableGeometry();
    EXPECT_LE(Bovenste().geometry().right(), scherm.right());
    EXPECT_GT(Bovenste().width(), scherm.width() * 3 / 4);
  });
}

TEST_F(ElementTest, DePromptHoortBijZijnVeld) {
  Bekijk([&] {
    int gevonden = 0;
    for (const QLabel* label : Bovenste().findChildren<QLabel*>()) {
      if (label->buddy() == &Vind("Een")) ++gevonden;
    }
    EXPECT_EQ(gevonden, 1);
  });
}

TEST_F(ElementTest, GeenKnopIsEenStandaardknop) {
  Bekijk([&] {
    for (const QPushButton* knop : Bovenste().findChildren<QPushButton*>()) {
      EXPECT_FALSE(knop->isDefault());
      EXPECT_FALSE(knop->autoDefault());
    }
  });
}

}  // namespace
}  // namespace lb77
