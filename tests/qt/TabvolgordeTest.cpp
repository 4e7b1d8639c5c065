// Tab goes through each form as the eye does: to the right, then down; beside each other only by columns.
#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <string>
#include <vector>

#include "Programmaproef.h"
#include "qt/Vertaling.h"

namespace lb77 {
namespace {

// Where Tab goes elsewhere, and why.
const std::vector<std::string> kAnders = {
    // OK follows the field that it is for; the search has its place on the other side.
    "OKButton ZoekButton",
    // The picture is what one came for; what can be chosen stands above it.
    "Beeld VormBox",
    "Beeld KleurBox",
    // A pedigree is read generation by generation, each from its top.
    "InfoPersoon(1) Proband(2)",
    "InfoPersoon(3) Proband(4)",
    "InfoPersoon(7) Proband(8)",
    // The fields follow the record; the kind of marriage has its words below the dates.
    "HuwSoortCode KHuwLabel",
};

class TabvolgordeTest : public Programmaproef, public testing::WithParamInterface<FormulierRij> {
 protected:
  static QRect Vak(QWidget& venster, const Bediening& bediening) {
    const auto* widget = venster.findChild<QWidget*>(NaarQt(bediening.Naam()));
    return {widget->mapTo(&venster, QPoint(0, 0)), widget->size()};
  }
  // Is the second where the eye goes behind the first?
  static bool Volgt(const QRect& een, const QRect& ander) {
    const bool zelfdeRegel = een.top() <= ander.center().y() && ander.top() <= een.center().y();
    if (zelfdeRegel) return ander.left() >= een.right();
    return ander.top() >= een.center().y() || ander.left() >= een.right();
  }

  VensterInstellingen instellingen_{{}};
};

TEST_P(TabvolgordeTest, TabGaatZoalsHetOogGaat) {
  GemaaktFormulier gemaakt = Maak(GetParam());
  Formulier& formulier = *gemaakt.formulier;
  ASSERT_TRUE(formulier.Laad());
  Binder binder(formulier, gesprek, instellingen_, nullptr);
  binder.Toon();
  QTimer::singleShot(0, qApp, [&] {
    const Bediening* vorige = nullptr;
    for (const Bediening* een : formulier.Bedieningen()) {
      if (!een->Bruikbaar() || !een->KanFocus()) continue;
      if (vorige) {
        const std::string paar = vorige->Naam() + " " + een->Naam();
        const bool anders = std::count(kAnders.begin(), kAnders.end(), paar) > 0;
        const bool volgt = Volgt(Vak(binder.Venster(), *vorige), Vak(binder.Venster(), *een));
        EXPECT_TRUE(volgt || anders) << paar;
      }
      vorige = een;
    }
    Toets(Qt::Key_Escape);
  });
  binder.Voer();
}

TEST_P(TabvolgordeTest, OveralIsTeZienWaarDeFocusIs) {
  GemaaktFormulier gemaakt = Maak(GetParam());
  Formulier& formulier = *gemaakt.formulier;
  ASSERT_TRUE(formulier.Laad());
  Binder binder(formulier, gesprek, instellingen_, nullptr);
  binder.Toon();
  QTimer::singleShot(0, qApp, [&] {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&binder.Venster()));
    Toets(Qt::Key_Tab);
    for (std::size_t i = 0; i < formulier.Bedieningen().size(); ++i) {
      const std::string hier = Focus();
      QWidget& widget = *binder.Venster().focusWidget();
      const QImage met = widget.grab().toImage();
      Toets(Qt::Key_Tab);
      if (Focus() != hier) {
        EXPECT_NE(widget.grab().toImage(), met) << formulier.Naam() << " " << hier;
      }
    }
    Toets(Qt::Key_Escape);
  });
  binder.Voer();
}

INSTANTIATE_TEST_SUITE_P(Alle, TabvolgordeTest, testing::ValuesIn(AlleFormulieren()),
                         [](const auto& rij) { return std::string(rij.param.naam); });

}  // namespace
}  // namespace lb77
