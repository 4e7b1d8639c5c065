// The focus: leave checks, swallowed clicks, Enter, Escape, Tab, accelerators.
#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "Proefvorm.h"
#include "Vensterproef.h"

namespace lb77 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FocusTest : public Vensterproef {
 protected:
  Proefvorm vorm{gesprek};
  void Speel(std::vector<std::function<void()>> stappen) {
    stappen.emplace_back([this] { QTest::mouseClick(&Vind("BackButton"), Qt::LeftButton); });
    Voer(vorm, std::move(stappen));
  }
  void Druk(const char* naam) { QTest::mouseClick(&Vind(naam), Qt::LeftButton); }
};

TEST_F(FocusTest, HetEersteVeldWordtNaHetActiverenEenKeerBetreden) {
  Speel({[&] { EXPECT_EQ(Focus(), "Een"); }});
  EXPECT_THAT(vorm.log, ElementsAre("in Een", "klik BackButton"));
}

TEST_F(FocusTest, EenMislukteControleSliktDeKnopInEnMeldtHetEenKeer) {
  vorm.eenGoed = false;
  Speel({[&] {
    Druk("OKButton");
    EXPECT_EQ(Focus(), "Een");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Vind("Een").hasFocus(); }));
  }});
  EXPECT_THAT(boxen, ElementsAre("Een is fout"));
  EXPECT_THAT(vorm.log, ElementsAre("in Een", "controle Een", "klik BackButton"));
}

TEST_F(FocusTest, EenMislukteControleLaatEenVinkjeZoalsHetWas) {
  vorm.eenGoed = false;
  Speel({[&] {
    Vind<QCheckBox>("Vink").click();
    EXPECT_FALSE(Vind<QCheckBox>("Vink").isChecked());
  }});
  EXPECT_FALSE(vorm.Vink.Gekozen());
  EXPECT_THAT(boxen, ElementsAre("Een is fout"));
}

TEST_F(FocusTest, EenMislukteControleLaatEenKeuzevakZoalsHetWas) {
  vorm.eenGoed = false;
  Speel({[&] {
    auto& vak = Vind<QComboBox>("Vak");
    Druk("Vak");
    EXPECT_FALSE(vak.view()->isVisible());
    EXPECT_EQ(vak.currentIndex(), -1);
  }});
  EXPECT_THAT(boxen, ElementsAre("Een is fout"));
}

TEST_F(FocusTest, EenMislukteControleHoudtDeMuisUitEenAnderVeld) {
  vorm.eenGoed = false;
  Speel({[&] {
           Druk("Vrij");
           EXPECT_EQ(Focus(), "Een");
         },
         [&] { EXPECT_EQ(Focus(), "Een"); }});
  EXPECT_THAT(boxen, ElementsAre("Een is fout"));
}

TEST_F(FocusTest, DeMuisGaatNaarEenAnderVeld) {
  Speel({[&] {
    Druk("Vrij");
    EXPECT_EQ(Focus(), "Vrij");
  }});
  EXPECT_THAT(vorm.log, ElementsAre("in Een", "controle Een", "in Vrij", "klik BackButton"));
}

TEST_F(FocusTest, EenFocusDieVanzelfVerhuistVraagtHetHetFormulier) {
  vorm.eenGoed = false;
  Speel({[&] {
    Vind("Vrij").setFocus(Qt::ShortcutFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Focus() == "Een"; }));
    QTest::qWait(20);
    EXPECT_EQ(Focus(), "Een");
  }});
  EXPECT_THAT(boxen, ElementsAre("Een is fout"));
}

TEST_F(FocusTest, EenFocusDieVanEenMeldingTerugkomtGeeftGeenGebeurtenis) {
  vorm.bijOK = [&] { gesprek.Informeer("klaar"); };
  Speel({[&] { Druk("OKButton"); }, [&] { EXPECT_EQ(Focus(), "OKButton"); }});
  EXPECT_THAT(vorm.log, ElementsAre("in Een", "controle Een", "in OKButton", "klik OKButton",
                                    "klik BackButton"));
}

TEST_F(FocusTest, EscapeGaatTerugZonderControle) {
  vorm.eenGoed = false;
  Voer(vorm, {[&] { Toets(Qt::Key_Escape); }});
  EXPECT_THAT(boxen, IsEmpty());
  EXPECT_THAT(vorm.log, ElementsAre("in Een", "klik BackButton"));
}

TEST_F(FocusTest, HetKaderGaatTerugZonderControle) {
  vorm.eenGoed = false;
  Voer(vorm, {[&] { Bovenste().close(); }});
  EXPECT_THAT(boxen, IsEmpty());
  EXPECT_THAT(vorm.log, ElementsAre("in Een", "klik BackButton"));
}

TEST_F(FocusTest, HetKaderZonderWegTerugLaatHetFormulierOpen) {
  vorm.BackButton.ZetIngeschakeld(false);
  vorm.bijOK = [&] { vorm.Sluit(); };
  Voer(vorm, {[&] {
         Bovenste().close();
         EXPECT_TRUE(Bovenste().isVisible());
         Druk("OKButton");
       }});
  EXPECT_TRUE(vorm.Gesloten());
}

TEST_F(FocusTest, EnterGaatVerder) {
  vorm.Een.ZetEnter(EnterSoort::Door);
  Speel({[&] {
    Toets(Qt::Key_Return);
    EXPECT_EQ(Focus(), "Cijfers");
  }});
}

TEST_F(FocusTest, EnterControleertEnBlijft) {
  vorm.Een.ZetEnter(EnterSoort::Controle);
  Speel({[&] {
    Toets(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Focus(), "Een");
  }});
  EXPECT_THAT(vorm.log, ElementsAre("in Een", "controle Een", "klik BackButton"));
}

TEST_F(FocusTest, EnterDruktOpOK) {
  vorm.Een.ZetEnter(EnterSoort::OK);
  Speel({[&] { Toets(Qt::Key_Return); }});
  EXPECT_THAT(vorm.log, testing::Contains("klik OKButton"));
}

TEST_F(FocusTest, EenVastgehoudenEnterTeltEenKeer) {
  vorm.Een.ZetEnter(EnterSoort::Controle);
  Speel({[&] {
    QKeyEvent herhaald(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&Vind("Een"), &herhaald);
    EXPECT_TRUE(herhaald.isAccepted());
  }});
  EXPECT_THAT(vorm.log, ElementsAre("in Een", "klik BackButton"));
}

TEST_F(FocusTest, EenVastgehoudenSpatieDruktEenKeer) {
  vorm.ZetEersteVeld(vorm.OKButton);
  Speel({[&] {
    Toets(Qt::Key_Space);
    QKeyEvent herhaald(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
    QApplication::sendEvent(&Vind("OKButton"), &herhaald);
  }});
  EXPECT_EQ(std::count(vorm.log.begin(), vorm.log.end(), "klik OKButton"), 1);
}

// A list that leaves its double click to the OK of its form.
class Kiesvorm final : public Formulier {
 public:
  Kiesvorm() : Formulier("Kiesvorm", "Kies") {
    Lijst.ZetRijen({"een", "twee"});
    Lijst.ZetIndex(1);
    OKButton.BijKlik([this] { ++keer; });
    BackButton.BijKlik([this] { Sluit(); });
    ZetEersteVeld(Lijst);
  }
  Keuzelijst Lijst{*this, "Lijst", "Lijst:"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};
  int keer = 0;
  using Formulier::ZetFocus;
};

TEST_F(FocusTest, EnterEnDubbelklikInEenLijstDrukkenOpOK) {
  Kiesvorm kies;
  Voer(kies, {[&] {
                Toets(Qt::Key_Return);
                EXPECT_EQ(kies.keer, 1);
                auto& lijst = Vind<QListWidget>("Lijst");
                emit lijst.itemDoubleClicked(lijst.item(1));
                EXPECT_EQ(kies.keer, 2);
                kies.OKButton.ZetIngeschakeld(false);
                kies.ZetFocus(kies.Lijst);
                Toets(Qt::Key_F8);
                Toets(Qt::Key_Return);
                EXPECT_EQ(kies.keer, 2);
              },
              [&] { Toets(Qt::Key_Escape); }});
}

TEST_F(FocusTest, EnterInEenLijstDoetWatHaarDubbelklikDoet) {
  vorm.Kieslijst.ZetRijen({"een", "twee"});
  vorm.Kieslijst.ZetIndex(1);
  vorm.ZetEersteVeld(vorm.Kieslijst);
  Speel({[&] { Toets(Qt::Key_Return); }});
  EXPECT_THAT(vorm.log, testing::Contains("dubbel Kieslijst"));
  EXPECT_EQ(std::count(vorm.log.begin(), vorm.log.end(), "klik OKButton"), 0);
}

TEST_F(FocusTest, EnterInEenLijstZonderKeuzeGaatVerder) {
  vorm.Kieslijst.ZetRijen({"een", "twee"});
  vorm.ZetEersteVeld(vorm.Kieslijst);
  Speel({[&] {
    Toets(Qt::Key_Return);
    EXPECT_EQ(Focus(), "PersNr(0)");
  }});
  EXPECT_EQ(std::count(vorm.log.begin(), vorm.log.end(), "klik OKButton"), 0);
}

TEST_F(FocusTest, OpEnNeerGaanNaarDeRegelErbovenEnEronder) {
  vorm.ZetEersteVeld(vorm.Cijfers);
  Speel({[&] {
    Toets(Qt::Key_Down);
    EXPECT_EQ(Focus(), "Groot");
    Toets(Qt::Key_Up);
    Toets(Qt::Key_Up);
    EXPECT_EQ(Focus(), "Een");
    Toets(Qt::Key_Up);
    EXPECT_EQ(Focus(), "Een");
  }});
}

TEST_F(FocusTest, OpEnNeerVragenHetHetFormulier) {
  vorm.eenGoed = false;
  Speel({[&] {
    Toets(Qt::Key_Down);
    EXPECT_EQ(Focus(), "Een");
  }});
  EXPECT_THAT(boxen, ElementsAre("Een is fout"));
}

TEST_F(FocusTest, InEenVensterDatNetOpenIsZietMenWaarDeFocusIs) {
  vorm.ZetEersteVeld(vorm.OKButton);
  Speel({[&] {
    QWidget& knop = Vind("OKButton");
    ASSERT_EQ(Focus(), "OKButton");
    const QImage met = knop.grab().toImage();
    vorm.ZetFocus(vorm.Vak);
    Toets(Qt::Key_F8);
    ASSERT_EQ(Focus(), "Vak");
    EXPECT_NE(knop.grab().toImage(), met);
    const QImage vak = Vind("Vak").grab().toImage();
    vorm.ZetFocus(vorm.Een);
    Toets(Qt::Key_F8);
    EXPECT_NE(Vind("Vak").grab().toImage(), vak);
  }});
}

TEST_F(FocusTest, EnterOpEenKnopDruktHem) {
  vorm.ZetEersteVeld(vorm.OKButton);
  Speel({[&] { Toets(Qt::Key_Return); }, [&] { Toets(Qt::Key_Space); }});
  EXPECT_EQ(std::count(vorm.log.begin(), vorm.log.end(), "klik OKButton"), 2);
}

TEST_F(FocusTest, TabVolgtDeVolgordeVanHetFormulier) {
  Speel({[&] {
    std::vector<std::string> gang;
    do {
      gang.push_back(Focus());
      Toets(Qt::Key_Tab);
    } while (Focus() != "Een" && gang.size() < 40);
    EXPECT_THAT(
        gang, ElementsAre("Een", "Cijfers", "Groot", "Vrij", "Blok", "Pad", "Vink", "Rood", "Groen",
                          "Blauw", "Vak", "Kieslijst", "PersNr(0)", "PersNr(1)", "PersNr(2)",
                          "Zoek(0)", "Zoek(1)", "Zoek(2)", "OKButton", "BackButton"));
    Toets(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Focus(), "BackButton");
  }});
}

TEST_F(FocusTest, TabBlijftAlsDeControleMislukt) {
  vorm.eenGoed = false;
  Speel({[&] {
    Toets(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "Een");
  }});
  EXPECT_THAT(boxen, ElementsAre("Een is fout"));
}

TEST_F(FocusTest, EenSneltoetsDruktEenKnopNaDeControle) {
  vorm.eenGoed = false;
  Speel({[&] {
    Toets(Qt::Key_O, Qt::AltModifier);
    QTest::qWait(200);
    EXPECT_EQ(Focus(), "Een");
  }});
  EXPECT_THAT(vorm.log, ElementsAre("in Een", "controle Een", "klik BackButton"));
}

TEST_F(FocusTest, DeSneltoetsVanEenPromptGaatNaarHetVeld) {
  vorm.ZetEersteVeld(vorm.Groot);
  Speel({[&] {
    Toets(Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(Focus(), "Een");
  }});
  EXPECT_THAT(vorm.log, ElementsAre("in Groot", "in Een", "klik BackButton"));
}

TEST_F(FocusTest, DeFocusVolgtHetFormulier) {
  vorm.bijOK = [&] { vorm.ZetFocus(vorm.Pad); };
  Speel({[&] {
    Druk("OKButton");
    EXPECT_EQ(Focus(), "Pad");
  }});
}

TEST_F(FocusTest, EenVeldDatOnderDeFocusUitgaatWordtNietGecontroleerd) {
  vorm.bijActief = [&] { vorm.ZetFocus(vorm.Een); };
  vorm.Vrij.BijWijziging([&] { vorm.Vrij.ZetIngeschakeld(false); });
  Speel({[&] { Druk("Vrij"); }, [&] { Typ("x"); }, [&] { EXPECT_FALSE(Vind("Vrij").hasFocus()); }});
  EXPECT_EQ(std::count(vorm.log.begin(), vorm.log.end(), "in Groot"), 0);
}

TEST_F(FocusTest, ToetsenKomenBijHetFormulierAlsNietsDeFocusHeeft) {
  vorm.Een.ZetIngeschakeld(false);
  Voer(vorm, {[&] {
         EXPECT_EQ(Focus(), "Proefvorm");
         Toets(Qt::Key_Escape);
       }});
  EXPECT_THAT(vorm.log, ElementsAre("klik BackButton"));
}

TEST_F(FocusTest, EenToetsDieEenVeldNietWilKomtEenKeer) {
  int keer = 0;
  vorm.Een.BijToets([&](ToetsGebeurtenis& toets) {
    if (toets.code == toets::kF8) ++keer;
  });
  Speel({[&] { Toets(Qt::Key_F8); }});
  EXPECT_EQ(keer, 1);
}

}  // namespace
}  // namespace lb77
