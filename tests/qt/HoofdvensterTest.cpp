// The main window: menus, status bar, place on the screen.
#include <gmock/gmock.h>

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include "Vensterproef.h"
#include "forms/Bestandsontvanger.h"
#include "forms/Redengever.h"
#include "qt/Hoofdvenster.h"
#include "qt/Vertaling.h"

namespace lb77 {
namespace {

class Menuvorm : public Formulier, public Redengever {
 public:
  Menuvorm() : Formulier("MenuWindow", "LB77 voor Windows") {
    Open.BijKlik([this] { log.emplace_back("open"); });
    Einde.BijKlik([this] { Sluit(); });
    Ongedaan.BijKlik([this] { log.emplace_back("ongedaan"); });
  }

  MenuKeuze Bestand{*this, "MenuBestand", "&Bestand", ""};
  MenuKeuze Open{*this, "OpenSet", "&Open Bestandenset", "MenuBestand"};
  MenuKeuze Ini{*this, "ZetIni", "In&stellingen", "MenuBestand"};
  MenuKeuze Gebruiker{*this, "SetupGebruiker", "&Gebruiker", "ZetIni"};
  MenuKeuze Einde{*this, "KeuzeAfsluiten", "&Afsluiten", "MenuBestand"};
  MenuKeuze Help{*this, "MenuHelp", "&Help", ""};
  MenuKeuze Ongedaan{*this, "VeiligOngedaan", "&Ongedaan", "MenuHelp"};
  Statusbalk Status{*this, "Statusbalk"};

  using Formulier::Sluit;
  [[nodiscard]] std::string WaaromGrijs(const Bediening& bediening) const override {
    return "Grijs: " + bediening.Naam();
  }
  std::vector<std::string> log;
  bool magSluiten = true;

 protected:
  [[nodiscard]] bool MagSluiten() override { return magSluiten; }
};

class HoofdvensterTest : public Vensterproef {
 protected:
  Menuvorm vorm;
  Hoofdvenster& Hoofd() { return dynamic_cast<Hoofdvenster&>(Bovenste()); }
  QAction& Actie(const char* naam) { return *Hoofd().Actie(naam); }
};

TEST_F(HoofdvensterTest, DeMenusStaanZoalsHetFormulierZegt) {
  Voer(vorm, {[&] {
         const auto balk = Hoofd().menuBar()->actions();
         ASSERT_EQ(balk.size(), 2);
         EXPECT_EQ(balk[0]->text(), QString("&Bestand"));
         const auto bestand = balk[0]->menu()->actions();
         ASSERT_EQ(bestand.size(), 5);
         EXPECT_TRUE(bestand[1]->isSeparator());
         EXPECT_TRUE(bestand[3]->isSeparator());
         EXPECT_EQ(bestand[2]->menu()->actions().value(0), &Actie("SetupGebruiker"));
         EXPECT_EQ(Hoofd().Actie("Onbekend"), nullptr);
         Actie("KeuzeAfsluiten").trigger();
       }});
  EXPECT_TRUE(vorm.Gesloten());
}

TEST_F(HoofdvensterTest, DeStatusregelZegtWatEenEntryNuZouDoen) {
  vorm.Ongedaan.ZetToelichting("Maakt ongedaan: Persoon 2 gewijzigd");
  Voer(vorm, {[&] {
         EXPECT_EQ(Actie("VeiligOngedaan").statusTip(), "Maakt ongedaan: Persoon 2 gewijzigd");
         EXPECT_EQ(Actie("OpenSet").statusTip(), "");
         Actie("VeiligOngedaan").showStatusText(&Hoofd());
         EXPECT_EQ(Hoofd().statusBar()->currentMessage(), "Maakt ongedaan: Persoon 2 gewijzigd");
         Actie("KeuzeAfsluiten").trigger();
       }});
}

TEST_F(HoofdvensterTest, DeStatusregelZegtWaaromEenEntryGrijsIs) {
  vorm.Open.ZetToelichting("Opent");
  vorm.Open.ZetIngeschakeld(false);
  Voer(vorm, {[&] {
         EXPECT_EQ(Actie("OpenSet").statusTip(), "Grijs: OpenSet");
         QMenu* const bestand = Hoofd().menuBar()->actions().value(0)->menu();
         bestand->setActiveAction(&Actie("OpenSet"));
         EXPECT_EQ(bestand->activeAction(), &Actie("OpenSet"));
         Actie("KeuzeAfsluiten").trigger();
       }});
}

TEST_F(HoofdvensterTest, HetDagelijkseWerkHeeftEigenToetsen) {
  Voer(vorm, {[&] {
                EXPECT_EQ(Actie("VeiligOngedaan").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Z));
                EXPECT_EQ(Actie("OpenSet").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
                EXPECT_TRUE(Actie("SetupGebruiker").shortcut().isEmpty());
                QTest::keyClick(&Hoofd(), Qt::Key_Z, Qt::ControlModifier);
                QTest::keyClick(&Hoofd(), Qt::Key_O, Qt::ControlModifier);
              },
              [&] { Actie("KeuzeAfsluiten").trigger(); }});
  EXPECT_THAT(vorm.log, testing::ElementsAre("ongedaan", "open"));
}

TEST_F(HoofdvensterTest, EenKeuzeVoertHaarHandelingUit) {
  Voer(vorm, {[&] { Actie("OpenSet").trigger(); }, [&] { Actie("KeuzeAfsluiten").trigger(); }});
  EXPECT_THAT(vorm.log, testing::ElementsAre("open"));
}

TEST_F(HoofdvensterTest, VlaggenStatusEnTitelVolgenHetFormulier) {
  vorm.Ini.ZetIngeschakeld(false);
  vorm.Gebruiker.ZetZichtbaar(false);
  vorm.Status.ZetTekst("Actieve Bestandenset:");
  vorm.Open.BijKlik([&] {
    vorm.Status.ZetTekst("Actieve bestandenset: ROYAL,Vorsten");
    vorm.Open.ZetIngeschakeld(false);
  });
  Voer(vorm, {[&] {
         EXPECT_EQ(Bovenste().windowTitle(), QString("LB77 voor Windows"));
         EXPECT_FALSE(Actie("ZetIni").isEnabled());
         EXPECT_FALSE(Actie("SetupGebruiker").isVisible());
         EXPECT_EQ(Vind<QLabel>("Statusbalk").text(), QString("Actieve Bestandenset:"));
         Actie("OpenSet").trigger();
         EXPECT_FALSE(Actie("OpenSet").isEnabled());
         EXPECT_EQ(Vind<QLabel>("Statusbalk").text(),
                   QString("Actieve bestandenset: ROYAL,Vorsten"));
         Actie("KeuzeAfsluiten").trigger();
       }});
}

TEST_F(HoofdvensterTest, StaatWaarHetFormulierZegtEnZegtWaarHetHeenGing) {
  vorm.ZetPositie({120, 80});
  Voer(vorm, {[&] {
         EXPECT_EQ(Bovenste().pos(), QPoint(120, 80));
         Bovenste().move(200, 150);
         QTest::qWait(10);
         Actie("KeuzeAfsluiten").trigger();
       }});
  ASSERT_TRUE(vorm.Positie());
  EXPECT_EQ(vorm.Positie()->x, 200);
  EXPECT_EQ(vorm.Positie()->y, 150);
}

TEST_F(HoofdvensterTest, DeVolleMaatIsGeenPlekOmNaarTerugTeKeren) {
  vorm.ZetPositie({120, 80});
  Voer(vorm, {[&] {
         Bovenste().showMaximized();
         QTest::qWait(10);
         EXPECT_NE(Bovenste().pos(), QPoint(120, 80));
         Actie("KeuzeAfsluiten").trigger();
       }});
  ASSERT_TRUE(vorm.Positie());
  EXPECT_EQ(vorm.Positie()->x, 120);
  EXPECT_EQ(vorm.Positie()->y, 80);
}

// A run of the program in which the user does something with the window.
void EenKeer(const QTemporaryDir& map, const std::function<void(Hoofdvenster&)>& doe) {
  QtGesprek deur(PadVanQt(map.path()));
  Menuvorm vorm;
  QTimer::singleShot(0, qApp, [&] {
    static_cast<void>(QTest::qWaitFor([] { return QApplication::activeWindow(); }));
    auto& venster = dynamic_cast<Hoofdvenster&>(*QApplication::activeWindow());
    doe(venster);
    QTest::qWait(10);
    venster.Actie("KeuzeAfsluiten")->trigger();
  });
  deur.ToonModaal(vorm);
}

TEST_F(HoofdvensterTest, WieMetEenVolSchermStoptBegintErWeerMee) {
  const QTemporaryDir map;
  constexpr QSize kMaat(930, 580);
  EenKeer(map, [&](Hoofdvenster& venster) {
    EXPECT_FALSE(venster.isMaximized());
    venster.resize(kMaat);
  });
  EenKeer(map, [&](Hoofdvenster& venster) {
    EXPECT_EQ(venster.size(), kMaat);
    venster.showMaximized();
  });
  EenKeer(map, [&](Hoofdvenster& venster) {
    EXPECT_TRUE(venster.isMaximized());
    EXPECT_EQ(venster.normalGeometry().size(), kMaat);
    venster.showNormal();
  });
  EenKeer(map, [&](Hoofdvenster& venster) { EXPECT_FALSE(venster.isMaximized()); });
}

TEST_F(HoofdvensterTest, EenPlekBuitenHetSchermWordtNietGenomen) {
  vorm.ZetPositie({-5000, 9000});
  Voer(vorm, {[&] {
         EXPECT_GT(Bovenste().pos().x(), -1000);
         EXPECT_LT(Bovenste().pos().y(), 2000);
         Actie("KeuzeAfsluiten").trigger();
       }});
}

TEST_F(HoofdvensterTest, EenPlekAanDeRandWordtZoDatHetHeleVensterErOpPast) {
  vorm.ZetPositie({1000, 700});
  Voer(vorm, {[&] {
         const QRect scherm = Bovenste().screen()->availableGeometry();
         EXPECT_TRUE(scherm.contains(Bovenste().frameGeometry()));
         EXPECT_GE(Bovenste().frameGeometry().right(), scherm.right() - 8);
         Actie("KeuzeAfsluiten").trigger();
       }});
}

TEST_F(HoofdvensterTest, HetKaderVraagtHetHetFormulier) {
  vorm.magSluiten = false;
  Voer(vorm, {[&] {
         Bovenste().close();
         EXPECT_TRUE(Bovenste().isVisible());
         vorm.magSluiten = true;
         Bovenste().close();
       }});
  EXPECT_TRUE(vorm.Gesloten());
}

// A form that takes what ends in ".ged".
class Ontvanger final : public Menuvorm, public Bestandsontvanger {
 public:
  [[nodiscard]] bool Neemt(const std::filesystem::path& bestand) const override {
    return bestand.extension() == ".ged";
  }
  void Ontvang(const std::filesystem::path& bestand) override { gebracht.push_back(bestand); }
  std::vector<std::filesystem::path> gebracht;
};

// Drags these files over the window and lets go; True when the window wanted them.
bool Sleep(QWidget& venster, const QList<QUrl>& plekken) {
  QMimeData inhoud;
  inhoud.setUrls(plekken);
  QDragEnterEvent erop(QPoint(9, 9), Qt::CopyAction, &inhoud, Qt::LeftButton, Qt::NoModifier);
  erop.ignore();
  QApplication::sendEvent(&venster, &erop);
  QDropEvent los(QPointF(9, 9), Qt::CopyAction, &inhoud, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&venster, &los);
  return erop.isAccepted();
}

TEST_F(HoofdvensterTest, EenBestandDatErOpValtGaatNaarHetFormulier) {
  Ontvanger ontvanger;
  const QUrl ged = QUrl::fromLocalFile("/elders/oma.ged");
  Voer(ontvanger,
       {[&] {
          const auto status = [&] { return Hoofd().statusBar()->currentMessage(); };
          EXPECT_FALSE(Sleep(Hoofd(), {QUrl::fromLocalFile("/elders/oma.txt")}));
          EXPECT_EQ(status(), "Alleen een GEDCOM-bestand (.ged) kan hierheen worden gesleept");
          EXPECT_FALSE(Sleep(Hoofd(), {ged, ged}));
          EXPECT_EQ(status(), "Sleep een GEDCOM-bestand tegelijk hierheen");
          EXPECT_FALSE(Sleep(Hoofd(), {QUrl("https://elders/oma.ged")}));
          EXPECT_EQ(status(), "Dit bestand staat niet op deze computer; bewaar het eerst hier");
          EXPECT_TRUE(Sleep(Hoofd(), {ged}));
          EXPECT_EQ(status(), "");
        },
        [&] { QTest::qWait(5); }, [&] { Actie("KeuzeAfsluiten").trigger(); }});
  EXPECT_THAT(ontvanger.gebracht, testing::ElementsAre("/elders/oma.ged"));
}

TEST_F(HoofdvensterTest, EenFormulierDatGeenBestandenNeemtKrijgtZeNiet) {
  Voer(vorm, {[&] {
         EXPECT_FALSE(Sleep(Hoofd(), {QUrl::fromLocalFile("/elders/oma.ged")}));
         EXPECT_EQ(Hoofd().statusBar()->currentMessage(), "");
         Actie("KeuzeAfsluiten").trigger();
       }});
}

TEST_F(HoofdvensterTest, EenSneltoetsOpentEenMenu) {
  Voer(vorm, {[&] {
         Toets(Qt::Key_B, Qt::AltModifier);
         EXPECT_TRUE(Actie("MenuBestand").menu()->isVisible());
         Actie("MenuBestand").menu()->close();
         Actie("KeuzeAfsluiten").trigger();
       }});
}

}  // namespace
}  // namespace lb77
