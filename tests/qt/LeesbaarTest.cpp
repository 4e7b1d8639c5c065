// Every form with letters of three sizes: no text is cut off, and all of it can be reached.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <string_view>
#include <tuple>

#include "Programmaproef.h"
#include "qt/Binder.h"
#include "qt/Indelingskeuze.h"
#include "qt/Vertaling.h"

namespace lb77 {
namespace {

using Geval = std::tuple<FormulierRij, int>;

// With letters of that many points.
class Letterproef : public Programmaproef {
 protected:
  void Begin(int punten) {
    QFont letter = vorige_;
    letter.setPointSize(punten);
    QApplication::setFont(letter);
    Programmaproef::SetUp();
  }
  void TearDown() override { QApplication::setFont(vorige_); }

  QFont vorige_ = QApplication::font();
  VensterInstellingen instellingen_{{}};
};

class LeesbaarTest : public Letterproef, public testing::WithParamInterface<Geval> {
 protected:
  void SetUp() override { Begin(std::get<1>(GetParam())); }

  // With the largest letters the forms with most in them may be wider than the smallest screen.
  bool MoetInDeBreedtePassen() const {
    const std::string_view naam = std::get<0>(GetParam()).naam;
    return std::get<1>(GetParam()) == 11 || naam == "Welkom" || naam == "WijzigPersoon";
  }
};

// What a text asks at least.
QSize Nodig(const QWidget& widget, const QString& tekst) {
  return widget.fontMetrics().size(Qt::TextShowMnemonic, tekst);
}

std::string Wat(const QWidget& widget, const QString& tekst) {
  return widget.objectName().toStdString() + ": " + tekst.toStdString();
}

void VerwachtRuimte(const QWidget& widget, const QString& tekst, int rand) {
  const QSize nodig = Nodig(widget, tekst);
  EXPECT_GE(widget.width(), nodig.width() + rand) << Wat(widget, tekst);
  EXPECT_GE(widget.height(), nodig.height()) << Wat(widget, tekst);
}

void VerwachtLabelHeel(const QLabel& label) {
  if (label.text().isEmpty()) return;
  if (!label.wordWrap()) return VerwachtRuimte(label, label.text(), 0);
  EXPECT_GE(label.height(), label.heightForWidth(label.width())) << Wat(label, label.text());
}

void VerwachtTekstHeel(QWidget& venster) {
  for (const QLabel* label : venster.findChildren<QLabel*>()) {
    if (label->isVisible()) VerwachtLabelHeel(*label);
  }
  for (const QAbstractButton* knop : venster.findChildren<QAbstractButton*>()) {
    const bool eigen = !knop->objectName().startsWith(QLatin1String("qt_"));
    if (knop->isVisible() && eigen) VerwachtRuimte(*knop, knop->text(), 4);
  }
  for (const QComboBox* vak : venster.findChildren<QComboBox*>()) {
    if (!vak->isVisible()) continue;
    EXPECT_GE(vak->width(), vak->sizeHint().width()) << Wat(*vak, {});
  }
  for (const QListWidget* lijst : venster.findChildren<QListWidget*>()) {
    if (!lijst->isVisible()) continue;
    EXPECT_EQ(lijst->horizontalScrollBar()->maximum(), 0) << Wat(*lijst, {});
  }
  for (const QGroupBox* groep : venster.findChildren<QGroupBox*>()) {
    if (groep->isVisible()) VerwachtRuimte(*groep, groep->title(), 0);
  }
}

// What a window is left by is never to be looked for.
void VerwachtUitgangInZicht(const QWidget& venster) {
  for (const char* naam : {"OKButton", "BackButton"}) {
    const auto* knop = venster.findChild<QAbstractButton*>(QLatin1String(naam));
    if (!knop || !knop->isVisible()) continue;
    const QRect plek(knop->mapTo(&venster, QPoint()), knop->size());
    EXPECT_TRUE(venster.rect().contains(plek)) << naam;
    EXPECT_TRUE(knop->visibleRegion().contains(knop->rect())) << naam;
  }
}

bool RoltOpzij(const QWidget& venster) {
  for (const QScrollArea* rol : venster.findChildren<QScrollArea*>()) {
    if (rol->horizontalScrollBar()->maximum() > 0) return true;
  }
  return false;
}

TEST_P(LeesbaarTest, GeenTekstIsAfgesneden) {
  GemaaktFormulier gemaakt = Maak(std::get<0>(GetParam()));
  ASSERT_TRUE(gemaakt.formulier->Laad());
  Binder binder(*gemaakt.formulier, gesprek, instellingen_, nullptr);
  binder.Toon();
  QTimer::singleShot(0, qApp, [&] {
    QWidget& venster = Bovenste();
    const QSize scherm = venster.screen()->availableSize();
    EXPECT_LE(venster.width(), scherm.width());
    EXPECT_LE(venster.height(), scherm.height());
    VerwachtTekstHeel(venster);
    VerwachtUitgangInZicht(venster);
    if (MoetInDeBreedtePassen()) {
      EXPECT_FALSE(RoltOpzij(venster));
    }
    Bewaar(venster, gemaakt.formulier->Naam() + "-" + std::to_string(std::get<1>(GetParam())));
    Toets(Qt::Key_Escape);
  });
  binder.Voer();
}

using Hoofdgeval = std::tuple<bool, int>;

// The main window with its start page, over a set and without one.
class HoofdschermLeesbaarTest : public Letterproef, public testing::WithParamInterface<Hoofdgeval> {
 protected:
  void SetUp() override { Begin(std::get<1>(GetParam())); }
};

TEST_P(HoofdschermLeesbaarTest, HetHoofdschermPastEnIsHeelTeLezen) {
  const auto [metSet, punten] = GetParam();
  MenuWindow& menu = MaakHoofdscherm(metSet);
  Voer(menu, {[&, metSet = metSet, punten = punten] {
         QWidget& venster = Bovenste();
         const QSize scherm = venster.screen()->availableSize();
         EXPECT_LE(venster.frameGeometry().width(), scherm.width());
         EXPECT_LE(venster.frameGeometry().height(), scherm.height());
         VerwachtTekstHeel(venster);
         for (const Bediening* een : menu.Bedieningen()) {
           const auto* widget = venster.findChild<QWidget*>(NaarQt(een->Naam()));
           if (!widget || !widget->isVisible()) continue;
           const QRect plek(widget->mapTo(&venster, QPoint(0, 0)), widget->size());
           EXPECT_TRUE(venster.rect().contains(plek)) << een->Naam();
         }
         EXPECT_EQ(venster.findChild<QWidget*>("ZoekButton")->isVisible(), metSet);
         EXPECT_EQ(venster.findChild<QWidget*>("NieuweFamilie")->isVisible(), !metSet);
         Bewaar(venster,
                std::string("MenuWindow-") + (metSet ? "set-" : "leeg-") + std::to_string(punten));
         // It stays on the screen when it goes from the one state to the other.
         for (Bediening* een : menu.Bedieningen()) {
           if (InIndeling(*een)) een->ZetZichtbaar(true);
         }
         QTest::qWait(60);  // a repaint for each
         gesprek.Ververs(menu);
         QTest::qWait(20);
         EXPECT_TRUE(venster.findChild<QWidget*>("NieuweFamilie")->isVisible());
         EXPECT_LE(venster.frameGeometry().width(), scherm.width());
         venster.close();
       }});
}

INSTANTIATE_TEST_SUITE_P(Alle, HoofdschermLeesbaarTest,
                         testing::Combine(testing::Bool(), testing::Values(11, 14, 18)),
                         [](const auto& geval) {
                           return std::string(std::get<0>(geval.param) ? "MetSetOp"
                                                                       : "ZonderSetOp") +
                                  std::to_string(std::get<1>(geval.param));
                         });

INSTANTIATE_TEST_SUITE_P(Alle, LeesbaarTest,
                         testing::Combine(testing::ValuesIn(AlleFormulieren()),
                                          testing::Values(11, 14, 18)),
                         [](const auto& geval) {
                           return std::string(std::get<0>(geval.param).naam) + "Op" +
                                  std::to_string(std::get<1>(geval.param));
                         });

}  // namespace
}  // namespace lb77
