// F1 in a form.
#include <gmock/gmock.h>

#include <QKeyEvent>

#include "Proefvorm.h"
#include "Vensterproef.h"

namespace lb77 {
namespace {

using testing::ElementsAre;

class HulpTest : public Vensterproef {
 protected:
  HulpTest() { vorm.ZetHulpOnderwerp("proeven"); }
  Proefvorm vorm{gesprek};
  std::vector<std::string> gevraagd;
};

TEST_F(HulpTest, VraagtHetOnderwerpVanHetFormulierWaarDeFocusOokStaat) {
  gesprek.BijHulp([this](const Formulier& een) { gevraagd.push_back(een.HulpOnderwerp()); });
  Voer(vorm, {[this] {
         Toets(Qt::Key_F1);
         vorm.GaNaar(vorm.OKButton);
         Toets(Qt::Key_F1);
         Toets(Qt::Key_F1, Qt::ShiftModifier);
         QKeyEvent vastgehouden(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, {}, true);
         QApplication::sendEvent(Bovenste().focusWidget(), &vastgehouden);
         EXPECT_THAT(gevraagd, ElementsAre("proeven", "proeven"));
         Toets(Qt::Key_Escape);
       }});
}

TEST_F(HulpTest, DoetNietsZonderHandleiding) {
  Voer(vorm, {[this] {
         Toets(Qt::Key_F1);
         EXPECT_FALSE(vorm.Gesloten());
         Toets(Qt::Key_Escape);
       }});
  EXPECT_TRUE(boxen.empty());
}

TEST_F(HulpTest, GeldtNietVoorEenFormulierDatBezigIs) {
  gesprek.BijHulp([this](const Formulier& een) { gevraagd.push_back(een.HulpOnderwerp()); });
  gesprek.ZetVerversingstijd(0);
  vorm.bijOK = [this] {
    Toets(Qt::Key_F1);
    // One that waits is let in while the form repaints.
    QApplication::postEvent(Bovenste().focusWidget(),
                            new QKeyEvent(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier));
    gesprek.Ververs(vorm);
  };
  Voer(vorm, {[this] {
         vorm.GaNaar(vorm.OKButton);
         Toets(Qt::Key_Space);
         EXPECT_TRUE(gevraagd.empty());
         Toets(Qt::Key_Escape);
       }});
}

}  // namespace
}  // namespace lb77
