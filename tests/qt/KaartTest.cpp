// Walking from card to card in windows.
#include <QLineEdit>
#include <algorithm>

#include "Vensterproef.h"
#include "script/Kaartproef.h"

namespace lb77 {
namespace {

class KaartVensterTest : public Vensterproef {
 protected:
  // Steps from the event loop until the walk ends.
  void Loop(std::function<void()> stap) {
    QTimer klok;
    QObject::connect(&klok, &QTimer::timeout, &klok, std::move(stap));
    klok.start(0);
    LoopKaarten(gesprek, PersoonOp(doos, 1));
  }
  void Druk(const char* naam) { QTest::mouseClick(&Vind(naam), Qt::LeftButton); }
  static qsizetype Vensters() {
    const auto alle = QApplication::topLevelWidgets();
    return std::count_if(alle.begin(), alle.end(), [](auto* een) { return een->isVisible(); });
  }

  Kaartendoos doos;
};

TEST_F(KaartVensterTest, DuizendStappenLatenEenVensterEnGroeienNiet) {
  constexpr int kHeen = 500;
  int stap = 0;
  qsizetype elementen = 0;
  Loop([&] {
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
  Loop([&] {
    if (++stap == 1) return Druk("Volgende");
    EXPECT_EQ(Focus(), "RecordNr");
    EXPECT_EQ(Vind<QLineEdit>("RecordNr").text(), QString("2"));
    Druk("BackButton");
  });
  EXPECT_EQ(stap, 2);
}

}  // namespace
}  // namespace lb77
