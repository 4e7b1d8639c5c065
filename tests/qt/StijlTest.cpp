// Letters and words.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QFontInfo>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <cstdlib>
#include <memory>

#include "qt/Stijl.h"
#include "qt/Vertaling.h"
#include "qt/Woorden.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

TEST(Stijl, LettersZijnGrootGenoegVoorOudereOgen) {
  EXPECT_GE(QApplication::font().pointSizeF(), 11.0);
}

// The name of its menu entry (pakket/lb77.desktop), which has the icon.
TEST(Stijl, HetBureaubladKentDeVensters) {
  EXPECT_EQ(QGuiApplication::desktopFileName(), "lb77");
}

TEST(Stijl, DeVasteLetterIsErWatHetSysteemOokHeeft) {
  EXPECT_TRUE(QFontInfo(VasteLetter(11)).fixedPitch());
  EXPECT_DOUBLE_EQ(VasteLetter(13).pointSizeF(), 13.0);
}

TEST(Stijl, UitgeschakeldeTekstIsNogTeLezen) {
  const QPalette kleuren = QApplication::palette();
  const int grond = kleuren.color(QPalette::Window).lightness();
  const int grijs = kleuren.color(QPalette::Disabled, QPalette::WindowText).lightness();
  EXPECT_GE(std::abs(grond - grijs), 100);
}

TEST(Stijl, KnoppenVanMeldingenStaanOveralInDezelfdeVolgorde) {
  EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_DialogButtonLayout),
            QDialogButtonBox::WinLayout);
}

TEST(Stijl, EenVeldOmTeLezenHeeftDeKleurVanZijnVenster) {
  QLineEdit veld;
  const QColor wit = veld.palette().color(QPalette::Base);
  ToonAlleenLezen(veld, true);
  EXPECT_EQ(veld.palette().color(QPalette::Base), veld.palette().color(QPalette::Window));
  ToonAlleenLezen(veld, false);
  EXPECT_EQ(veld.palette().color(QPalette::Base), wit);
}

TEST(Woorden, HetMenuVanEenVeldIsNederlands) {
  QLineEdit veld;
  const std::unique_ptr<QMenu> menu(veld.createStandardContextMenu());
  QStringList teksten;
  for (const QAction* actie : menu->actions()) teksten += actie->text().section(u'\t', 0, 0);
  for (const char* woord : {"&Ongedaan maken", "Op&nieuw", "K&nippen", "&Kopiëren", "&Plakken",
                            "Verwijderen", "Alles selecteren"}) {
    EXPECT_TRUE(teksten.contains(QString::fromUtf8(woord))) << woord;
  }
}

TEST(Woorden, OnbekendeTekstBlijftZoalsHijIs) {
  EXPECT_TRUE(Woorden().translate("QX", "Something else", nullptr, -1).isNull());
  EXPECT_EQ(QApplication::translate("QX", "Something else"), QString("Something else"));
}

TEST(Vertaling, ElkeByteKomtAlsZichzelfTerug) {
  std::string alle;
  for (int i = 1; i < 256; ++i) alle += static_cast<char>(i);
  const Overgezet terug = VanQt(NaarQt(alle));
  EXPECT_EQ(terug.tekst, alle);
  EXPECT_FALSE(terug.geweigerd);
}

TEST(Vertaling, AccentenAchterHunLetterWordenErmeeVerenigd) {
  EXPECT_EQ(VanQt(QString::fromUtf8("e\u0308")).tekst, "ë"_w);
}

TEST(Vertaling, PadenKomenAlsZichzelfTerug) {
  const std::filesystem::path pad(u8"/tmp/Łódź/漢");
  EXPECT_EQ(PadVanQt(PadNaarQt(pad)), pad);
}

TEST(Vertaling, EenPadMetEenFouteNaamIsTochTeZien) {
  EXPECT_FALSE(PadNaarQt(std::filesystem::path("/tmp/\xFF\xFE")).isEmpty());
}

}  // namespace
}  // namespace lb77
