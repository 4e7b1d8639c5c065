// Walking from card to card in windows.
#include <QLineEdit>
#include <algorithm>
#include <array>

#include "Gezinsproef.h"
#include "entry/ToonPersoon.h"
#include "script/Kaartproef.h"

namespace lb77 {
namespace {

// Steps from the event loop until the walk ends.
template <class Proef>
class Kaartgang : public Proef {
 protected:
  void Loop(KaartVraag eerste, std::function<void()> stap) {
    QTimer klok;
    QObject::connect(&klok, &QTimer::timeout, &klok, std::move(stap));
    klok.start(0);
    LoopKaarten(this->gesprek, std::move(eerste));
  }
  void Druk(const char* naam) { QTest::mouseClick(&this->Vind(naam), Qt::LeftButton); }
  static qsizetype Vensters() {
    const auto alle = QApplication::topLevelWidgets();
    return std::count_if(alle.begin(), alle.end(), [](auto* een) { return een->isVisible(); });
  }
};

class KaartVensterTest : public Kaartgang<Vensterproef> {
 protected:
  Kaartendoos doos;
};

TEST_F(KaartVensterTest, DuizendStappenLatenEenVensterEnGroeienNiet) {
  constexpr int kHeen = 500;
  int stap = 0;
  qsizetype elementen = 0;
  Loop(PersoonOp(doos, 1), [&] {
    if (++stap == 3) elementen = QApplication::allWidgets().size();
    ASSERT_EQ(Vensters(), 1) << stap;
    Druk(stap <= kHeen ? "Ander" : "BackButton");
  });
  EXPECT_EQ(stap, 2 * kHeen + 1);
  EXPECT_EQ(doos.geladen, 2 * kHeen + 1);
  EXPECT_EQ(doos.meest, 1);
  EXPECT_EQ(doos.kader, doos.eersteKader);
  EXPECT_LE(QApplication::allWidgets().size(), elementen);
}

TEST_F(KaartVensterTest, HerladenZetDeFocusOpHetEersteVeld) {
  int stap = 0;
  Loop(PersoonOp(doos, 1), [&] {
    if (++stap == 1) return Druk("Volgende");
    EXPECT_EQ(Focus(), "RecordNr");
    EXPECT_EQ(Vind<QLineEdit>("RecordNr").text(), QString("2"));
    Druk("BackButton");
  });
  EXPECT_EQ(stap, 2);
}

using PersoonKaartTest = Kaartgang<Gezinsproef>;

// The child, its father and his partner on the same card; by their relation and its children to the
// child again, and all the way back.
TEST_F(PersoonKaartTest, DuizendStappenOpDeKaartenLatenEenVensterEnGroeienNiet) {
  constexpr std::array kRonde = {"RecordNrPa", "RecordNrP(1)", "RelNrP(1)", "NaarKind",
                                 "NaarKind(1)"};
  constexpr int kRondes = 125;
  constexpr int kHeen = kRondes * static_cast<int>(kRonde.size());
  constexpr int kTerug = kRondes * 3 + 1;
  static_assert(kHeen + kTerug > 1000);
  int stap = 0;
  qsizetype elementen = 0;
  Loop(ToonPersoonVraag(Hoofd(), 4), [&] {
    ASSERT_EQ(Vensters(), 1) << stap;
    const int nu = stap++;
    const auto deel = static_cast<std::size_t>(nu) % kRonde.size();
    // The same card each round, when all kinds have been there.
    const qsizetype nuElementen = QApplication::allWidgets().size();
    if (nu == static_cast<int>(kRonde.size())) elementen = nuElementen;
    if (deel == 0 && nu > 0 && nu <= kHeen) {
      EXPECT_EQ(nuElementen, elementen) << nu;
    }
    Druk(nu < kHeen ? kRonde[deel] : "BackButton");
  });
  EXPECT_EQ(stap, kHeen + kTerug);
  EXPECT_TRUE(boxen.empty());
}

}  // namespace
}  // namespace lb77
