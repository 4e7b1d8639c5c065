// The menu of the program as a user meets it: its keys, its lines, and why an entry is greyed.
#include <gmock/gmock.h>

#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QStatusBar>
#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "Programmaproef.h"
#include "app/Bestandensets.h"
#include "forms/Bijschrift.h"
#include "qt/Hoofdvenster.h"
#include "qt/Menutoetsen.h"
#include "qt/Vertaling.h"

namespace lb77 {
namespace {

constexpr int kMeesteZonderLijn = 4;

// Their captions are fixed.
const std::vector<std::string> kDubbel = {"ContrPrs ContrPlts"};

class MenuTest : public Programmaproef {
 protected:
  // Looks at the main window, with a family open or without one.
  void Kijk(bool metFamilie, const std::function<void(Hoofdvenster&)>& doe) {
    Hoofdmodule& hoofd = programma_->Hoofd();
    hoofd.Ini.IniZet("Systeem", "Set", metFamilie ? "ORANJE" : "");
    if (!metFamilie) hoofd.Ini.IniZet("Sets", "Set1", "");
    hoofd.ActieveSetNaam = kGeenSetAanwezig;
    programma_->Menu().MaakStartblad();
    Voer(programma_->Menu(), {[&] {
           auto& venster = dynamic_cast<Hoofdvenster&>(Bovenste());
           doe(venster);
           venster.close();
         }});
  }

  // What stands in the menu, without what is hidden.
  static QList<QAction*> Zichtbaar(const QList<QAction*>& acties) {
    QList<QAction*> uit;
    for (QAction* actie : acties) {
      if (actie->isVisible()) uit += actie;
    }
    return uit;
  }
  static QList<QList<QAction*>> AlleMenus(const Hoofdvenster& venster) {
    QList<QList<QAction*>> uit{Zichtbaar(venster.menuBar()->actions())};
    for (qsizetype i = 0; i < uit.size(); ++i) {
      for (const QAction* actie : QList<QAction*>(uit[i])) {
        if (actie->menu()) uit += Zichtbaar(actie->menu()->actions());
      }
    }
    return uit;
  }
  static std::string Naam(const QAction& actie) { return actie.objectName().toStdString(); }
};

TEST_F(MenuTest, GeenMenuHeeftEenSneltoetsTweeKeer) {
  Kijk(true, [](Hoofdvenster& venster) {
    for (const auto& menu : AlleMenus(venster)) {
      std::map<char, std::string> gehad;
      for (const QAction* actie : menu) {
        if (actie->isSeparator()) continue;
        const char letter = Sneltoets(VanQt(actie->text()).tekst);
        EXPECT_NE(letter, '\0') << Naam(*actie);
        const auto [ander, nieuw] = gehad.emplace(letter, Naam(*actie));
        const std::string dubbel = ander->second + " " + Naam(*actie);
        EXPECT_TRUE(nieuw || std::count(kDubbel.begin(), kDubbel.end(), dubbel) > 0) << dubbel;
      }
    }
  });
}

TEST_F(MenuTest, EenLangMenuIsVerdeeldDoorLijnen) {
  Kijk(true, [](Hoofdvenster& venster) {
    QList<QList<QAction*>> menus = AlleMenus(venster);
    menus.removeFirst();  // the bar
    for (const auto& menu : menus) {
      ASSERT_FALSE(menu.isEmpty());
      EXPECT_FALSE(menu.front()->isSeparator()) << Naam(*menu.value(1));
      int reeks = 0;
      for (const QAction* actie : menu) {
        EXPECT_FALSE(actie->isSeparator() && reeks == 0);
        reeks = actie->isSeparator() ? 0 : reeks + 1;
        EXPECT_LE(reeks, kMeesteZonderLijn) << Naam(*actie);
      }
      EXPECT_GT(reeks, 0);
    }
  });
}

TEST_F(MenuTest, ElkeToetsStaatEenKeerInHetMenu) {
  Kijk(true, [](Hoofdvenster& venster) {
    std::set<std::string> toetsen;
    for (const auto& menu : AlleMenus(venster)) {
      for (const QAction* actie : menu) {
        if (actie->shortcut().isEmpty()) continue;
        EXPECT_TRUE(toetsen.insert(actie->shortcut().toString().toStdString()).second);
        EXPECT_TRUE(actie->isShortcutVisibleInContextMenu());
      }
    }
    EXPECT_THAT(toetsen, testing::ElementsAre("Ctrl+F", "Ctrl+G", "Ctrl+I", "Ctrl+K", "Ctrl+L",
                                              "Ctrl+N", "Ctrl+O", "Ctrl+Q", "Ctrl+S", "Ctrl+Z"));
  });
}

class BegintMet : public MenuTest, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(Familie, BegintMet, testing::Bool());

// A press of Alt with a letter reaches both.
TEST_P(BegintMet, DeMenubalkEnHetStartbladDelenGeenSneltoets) {
  Kijk(GetParam(), [this](Hoofdvenster& venster) {
    std::set<char> gehad;
    for (const QAction* actie : venster.menuBar()->actions()) {
      gehad.insert(Sneltoets(VanQt(actie->text()).tekst));
    }
    const std::size_t menus = gehad.size();
    for (const Bediening* een : programma_->Menu().Bedieningen()) {
      if (een->Soort() != BedieningSoort::Knop || !een->Zichtbaar()) continue;
      EXPECT_TRUE(gehad.insert(Sneltoets(een->Bijschrift())).second) << een->Naam();
    }
    EXPECT_EQ(gehad.size(), menus + 4);
  });
}

TEST_P(BegintMet, WatGrijsIsZegtWaarom) {
  Kijk(GetParam(), [](Hoofdvenster& venster) {
    int grijs = 0;
    for (const auto& menu : AlleMenus(venster)) {
      for (const QAction* actie : menu) {
        if (actie->isSeparator() || actie->isEnabled()) continue;
        ++grijs;
        EXPECT_FALSE(actie->statusTip().isEmpty()) << Naam(*actie);
      }
    }
    EXPECT_GT(grijs, 4);
  });
}

TEST_F(MenuTest, EenGrijsMenuInDeBalkZegtWaaromAlsHetWordtAangewezen) {
  const QString reden = QStringLiteral("Open eerst een bestandenset");
  Kijk(false, [this, &reden](Hoofdvenster& venster) {
    QMenuBar& balk = *venster.menuBar();
    const QPoint plek = balk.actionGeometry(venster.Actie("MenuInvoer")).center();
    QMouseEvent erop(QEvent::MouseMove, plek, balk.mapToGlobal(plek), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    const auto zegt = [&venster](const QString& tekst) {
      return QTest::qWaitFor([&] { return venster.statusBar()->currentMessage() == tekst; });
    };
    QApplication::sendEvent(&balk, &erop);
    EXPECT_TRUE(zegt(reden));
    QEvent eraf(QEvent::Leave);
    QApplication::sendEvent(&balk, &eraf);
    EXPECT_TRUE(zegt({}));
    Toets(Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(zegt(reden));
  });
}

}  // namespace
}  // namespace lb77
