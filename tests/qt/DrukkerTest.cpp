// Pages on paper.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTimer>

#include "qt/Bladzijde.h"
#include "qt/Drukker.h"

namespace lb77 {
namespace {

Afdruk Proefdruk(std::size_t paginas) {
  Afdruk afdruk;
  afdruk.titel = "Proef";
  const std::vector<std::string> vol(kBladRegels, std::string(kBladKolommen, 'W'));
  afdruk.paginas.assign(paginas, vol);
  return afdruk;
}

class DrukkerTest : public testing::Test {
 protected:
  QTemporaryDir map_;
  [[nodiscard]] QString Pad(const char* naam) const { return map_.filePath(QLatin1String(naam)); }
  static int Paginas(const QString& pad) {
    QFile bestand(pad);
    EXPECT_TRUE(bestand.open(QIODevice::ReadOnly));
    return static_cast<int>(bestand.readAll().count("/Type /Page\n"));
  }
};

TEST_F(DrukkerTest, EenHeleBladzijdePastOpElkPapier) {
  for (const auto soort : {QPageSize::A4, QPageSize::A5, QPageSize::Letter}) {
    QPdfWriter papier(Pad("maat.pdf"));
    papier.setPageSize(QPageSize(soort));
    const QSizeF vlak(papier.width(), papier.height());
    const QFont letter = Drukletter(papier, vlak, papier.resolution());
    const QFontMetricsF maten(letter, &papier);
    EXPECT_LE(maten.horizontalAdvance(QString(kBladKolommen, u'W')), vlak.width());
    EXPECT_LE(maten.lineSpacing() * kBladRegels, vlak.height());
    EXPECT_TRUE(QFontInfo(letter).fixedPitch());
  }
}

TEST_F(DrukkerTest, DeLetterWordtNietGroterDanTwaalfPunten) {
  QPdfWriter papier(Pad("groot.pdf"));
  papier.setPageSize(QPageSize(QPageSize::A0));
  const QFont letter =
      Drukletter(papier, QSizeF(papier.width(), papier.height()), papier.resolution());
  EXPECT_EQ(letter.pixelSize(), 12 * papier.resolution() / 72);
}

TEST_F(DrukkerTest, ElkeBladzijdeHeeftEenEigenVel) {
  {
    QPdfWriter papier(Pad("druk.pdf"));
    EXPECT_TRUE(Druk(papier, Proefdruk(3)));
  }
  EXPECT_EQ(Paginas(Pad("druk.pdf")), 3);
}

TEST_F(DrukkerTest, PapierDatNietBeschrevenKanWordenIsEenFout) {
  QPdfWriter papier(Pad("geen/map/druk.pdf"));
  EXPECT_FALSE(Druk(papier, Proefdruk(1)));
}

TEST_F(DrukkerTest, EenFoutWordtGemeld) {
  QString tekst;
  QTimer::singleShot(0, qApp, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    tekst = box->text();
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    box->reject();
  });
  QPdfWriter papier(Pad("geen/map/druk.pdf"));
  EXPECT_FALSE(DrukOfMeld(nullptr, papier, Proefdruk(1)));
  EXPECT_EQ(tekst, QString("Fout bij het printen van de tekst."));
  QPdfWriter goed(Pad("druk.pdf"));
  EXPECT_TRUE(DrukOfMeld(nullptr, goed, Proefdruk(1)));
}

TEST_F(DrukkerTest, AnnulerenDruktNietsAf) {
  QTimer::singleShot(0, qApp, [] {
    auto* vraag = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(vraag);
    EXPECT_EQ(vraag->windowTitle(), QString("Afdrukken"));
    vraag->reject();
  });
  EXPECT_FALSE(VraagEnDrukAf(nullptr, Proefdruk(1)));
}

}  // namespace
}  // namespace lb77
