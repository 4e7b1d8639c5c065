// A drawing in a window and on paper.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QToolButton>

#include "Vensterproef.h"
#include "forms/Beeldvlak.h"
#include "qt/Tekenaar.h"
#include "qt/Tekenvlak.h"
#include "steun/TijdelijkeMap.h"
#include "steun/VolleSchijf.h"

namespace lb77 {
namespace {

constexpr Kleur kRood{200, 0, 0};
constexpr Kleur kGroen{0, 160, 0};

// Two persons side by side, on white.
Tekening Proeftekening() {
  Tekening tekening;
  tekening.titel = "Proef";
  tekening.breedte = 200;
  tekening.hoogte = 100;
  tekening.vormen = {
      {.wat = Rechthoek{0, 0, 200, 100}, .vulling = Kleur{255, 255, 255}},
      {.wat = Rechthoek{10, 10, 80, 80}, .vulling = kRood, .doel = 0},
      {.wat = Opschrift{{50, 50}, "Jan", 10, false, Tekstanker::Midden, 0, 30},
       .vulling = Kleur{},
       .doel = 0},
      {.wat = Ringdeel{{150, 50}, 0, 40, 0, 360}, .vulling = kGroen, .doel = 1},
  };
  tekening.doelen = {{2, "Jan", 1}, {3, "Anna", 3}};
  return tekening;
}

class Beeldvorm final : public Formulier {
 public:
  Beeldvorm() : Formulier("Beeldvorm", "Een proef") {
    ZetEersteVeld(Beeld);
    Beeld.ZetBeeld(Proeftekening());
    Beeld.BijDubbelklik([this] { geopend.push_back(Beeld.GekozenNr()); });
    BackButton.BijKlik([this] { Sluit(); });
  }
  Beeldvlak Beeld{*this, "Beeld", "Een beeld"};
  Knop BackButton{*this, "BackButton", "&Terug"};
  std::vector<int> geopend;
};

class TekenvlakTest : public Vensterproef {
 protected:
  void Bekijk(const std::function<void()>& kijk) {
    Voer(vorm, {kijk, [this] { QTest::mouseClick(&Vind("BackButton"), Qt::LeftButton); }});
  }
  Tekenvlak& Vlak() { return Vind<Tekenvlak>("Beeld"); }
  QPoint Plek(double x, double y) { return Vlak().Plek({x, y}).toPoint(); }

  Beeldvorm vorm;
  QTemporaryDir map_;
};

TEST_F(TekenvlakTest, EenKlikOpEenPersoonOpentHem) {
  Bekijk([&] {
    QTest::mouseClick(&Vlak(), Qt::LeftButton, {}, Plek(150, 50));
    EXPECT_EQ(vorm.geopend, std::vector<int>{3});
    QTest::mouseClick(&Vlak(), Qt::LeftButton, {}, Plek(100, 5));
    EXPECT_EQ(vorm.geopend.size(), 1U);
    EXPECT_EQ(vorm.Beeld.Index(), 1);
  });
}

TEST_F(TekenvlakTest, SlepenVerschuiftEnOpentNiemand) {
  Bekijk([&] {
    const QPoint van = Plek(50, 30);
    const QPointF eerst = Vlak().Plek({0, 0});
    QTest::mousePress(&Vlak(), Qt::LeftButton, {}, van);
    QTest::mouseMove(&Vlak(), van + QPoint(30, 20));
    QTest::mouseRelease(&Vlak(), Qt::LeftButton, {}, van + QPoint(30, 20));
    EXPECT_EQ(Vlak().Plek({0, 0}), eerst + QPointF(30, 20));
    EXPECT_TRUE(vorm.geopend.empty());
  });
}

TEST_F(TekenvlakTest, ToetsenVergrotenEnVerschuiven) {
  Bekijk([&] {
    const double eerst = Vlak().Schaal();
    const QPointF midden = QRectF(Vlak().rect()).center();
    Toets(Qt::Key_Plus);
    EXPECT_NEAR(Vlak().Schaal(), eerst * 1.25, 1e-9);
    EXPECT_NEAR(Vlak().Plek({100, 50}).x(), midden.x(), 1);
    Toets(Qt::Key_Minus);
    Toets(Qt::Key_Minus);
    EXPECT_NEAR(Vlak().Schaal(), eerst / 1.25, 1e-9);
    const QPointF nul = Vlak().Plek({0, 0});
    Toets(Qt::Key_Right);
    EXPECT_LT(Vlak().Plek({0, 0}).x(), nul.x());
    Toets(Qt::Key_Left);
    Toets(Qt::Key_Down);
    EXPECT_NEAR(Vlak().Plek({0, 0}).x(), nul.x(), 1e-6);
    EXPECT_LT(Vlak().Plek({0, 0}).y(), nul.y());
    Toets(Qt::Key_Up);
    EXPECT_NEAR(Vlak().Plek({0, 0}).y(), nul.y(), 1e-6);
    Toets(Qt::Key_0);
    EXPECT_NEAR(Vlak().Schaal(), eerst, 1e-9);
  });
}

TEST_F(TekenvlakTest, HetBeeldVerdwijntNooitUitZicht) {
  Bekijk([&] {
    for (int i = 0; i < 100; ++i) Toets(Qt::Key_Right);
    EXPECT_GE(Vlak().Plek({200, 0}).x(), 0);
    for (int i = 0; i < 100; ++i) Toets(Qt::Key_Minus);
    EXPECT_GT(Vlak().Schaal(), 0.1);
    for (int i = 0; i < 100; ++i) Toets(Qt::Key_Plus);
    EXPECT_LE(Vlak().Schaal(), 16);
  });
}

TEST_F(TekenvlakTest, DeBladtoetsenGaanVanPersoonTotPersoonEnTabGaatVerder) {
  Bekijk([&] {
    EXPECT_EQ(Focus(), "Beeld");
    Toets(Qt::Key_PageDown);
    EXPECT_EQ(vorm.Beeld.Index(), 0);
    Toets(Qt::Key_PageDown);
    EXPECT_EQ(vorm.Beeld.Index(), 1);
    EXPECT_EQ(Vlak().accessibleDescription(), QStringLiteral("Anna"));
    Toets(Qt::Key_PageUp);
    EXPECT_EQ(vorm.Beeld.Index(), 0);
    Toets(Qt::Key_PageUp);
    EXPECT_EQ(vorm.Beeld.Index(), 0);
    EXPECT_EQ(Focus(), "Beeld");
    Toets(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "BackButton");
  });
}

TEST_F(TekenvlakTest, WieGekozenIsKomtInBeeld) {
  Bekijk([&] {
    for (int i = 0; i < 12; ++i) Toets(Qt::Key_Plus);
    Toets(Qt::Key_PageDown);
    Toets(Qt::Key_PageDown);
    EXPECT_TRUE(Vlak().rect().contains(Plek(150, 50)));
    Toets(Qt::Key_PageUp);
    EXPECT_TRUE(Vlak().rect().contains(Plek(50, 50)));
  });
}

TEST_F(TekenvlakTest, DeKnoppenDoenWatDeToetsenDoen) {
  Bekijk([&] {
    const auto knoppen = Vlak().findChildren<QToolButton*>();
    ASSERT_EQ(knoppen.size(), 3);
    const double eerst = Vlak().Schaal();
    QTest::mouseClick(knoppen[0], Qt::LeftButton);
    EXPECT_GT(Vlak().Schaal(), eerst);
    QTest::mouseClick(knoppen[2], Qt::LeftButton);
    EXPECT_NEAR(Vlak().Schaal(), eerst, 1e-9);
    QTest::mouseClick(knoppen[1], Qt::LeftButton);
    EXPECT_LT(Vlak().Schaal(), eerst);
    for (const QToolButton* knop : knoppen) EXPECT_FALSE(knop->accessibleName().isEmpty());
  });
}

TEST_F(TekenvlakTest, HetSchermToontDeVormen) {
  QImage beeld(200, 100, QImage::Format_RGB32);
  QPainter verf(&beeld);
  TekenIn(verf, Proeftekening(), QRectF(0, 0, 200, 100));
  verf.end();
  EXPECT_EQ(beeld.pixelColor(20, 20), QColor(200, 0, 0));
  EXPECT_EQ(beeld.pixelColor(150, 20), QColor(0, 160, 0));
  EXPECT_EQ(beeld.pixelColor(112, 12), QColor(255, 255, 255));  // beside the disk
  bool zwart = false;
  for (int x = 40; x < 60; ++x) zwart |= beeld.pixelColor(x, 46).lightness() < 60;
  EXPECT_TRUE(zwart);
}

TEST_F(TekenvlakTest, WieGekozenIsHeeftOokInHetDonkerEenDonkereRand) {
  Bekijk([&] {
    QPalette donker = Vlak().palette();
    donker.setColor(QPalette::Text, Qt::white);
    Vlak().setPalette(donker);
    vorm.Beeld.ZetIndex(0);
    Vlak().ZetGekozen(0);
    const QImage scherm = Vlak().grab().toImage();
    EXPECT_LT(scherm.pixelColor(Plek(10, 50)).lightness(), 60);
  });
}

TEST_F(TekenvlakTest, EenPdfHeeftEenBladzijdePerVel) {
  const QString pad = map_.filePath(QStringLiteral("vellen.pdf"));
  Vellen vellen{300, 200, 1, 2, 1, 20, {}};
  vellen.vellen = {{{0, 0, 120, 100}, {30, 30}, 0, 0}, {{100, 0, 120, 100}, {30, 30}, 1, 0}};
  EXPECT_EQ(gesprek.MaakPdf(pad.toStdString(), Proeftekening(), vellen), std::nullopt);
  QFile bestand(pad);
  ASSERT_TRUE(bestand.open(QIODevice::ReadOnly));
  const QByteArray inhoud = bestand.readAll();
  EXPECT_EQ(inhoud.count("/Type /Page\n"), 2);
  EXPECT_EQ(inhoud.count("/MediaBox [0 0 300.000000 200.000000]"), 2)
      << inhoud.left(3000).toStdString();
  EXPECT_GT(inhoud.count("/Type /Font\n"), 0);  // real text
}

TEST_F(TekenvlakTest, EenPdfDieNietKanZegtWaarom) {
  const auto fout = [this](const char* naam) {
    return SchrijfPdf(map_.filePath(QLatin1String(naam)).toStdString(), Proeftekening(),
                      Vellen{100, 100, 1, 1, 1, 0, {{{0, 0, 100, 100}, {0, 0}, 0, 0}}});
  };
  EXPECT_EQ(fout("weg/een.pdf"), "Bestand niet gevonden");
  ASSERT_TRUE(QDir(map_.path()).mkdir(QStringLiteral("map.pdf")));
  EXPECT_EQ(fout("map.pdf"), "Pad is een directory");
  EXPECT_EQ(fout("heel.pdf"), std::nullopt);
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  const std::string heel = LeesBytes(map_.filePath(QStringLiteral("heel.pdf")).toStdString());
  {
    const VolleSchijf schijf(100);
    EXPECT_EQ(fout("heel.pdf"), "Bestand te groot");
    EXPECT_EQ(fout("vol.pdf"), "Bestand te groot");
  }
  EXPECT_EQ(LeesBytes(map_.filePath(QStringLiteral("heel.pdf")).toStdString()), heel);
  EXPECT_THAT(QDir(map_.path()).entryList(QDir::Files), testing::Contains("heel.pdf"));
  EXPECT_THAT(QDir(map_.path()).entryList(QDir::Files | QDir::Hidden),
              testing::Not(testing::Contains(testing::Truly([](const QString& naam) {
                return naam.contains(u'~') || naam == QLatin1String("vol.pdf");
              }))));
}

TEST_F(TekenvlakTest, WatEenGestopteRunLietLiggenHoudtEenPdfNietTegen) {
  SchrijfBytes(map_.filePath(QStringLiteral("een.pdf.~")).toStdString(), "half");
  const std::string pad = map_.filePath(QStringLiteral("een.pdf")).toStdString();
  EXPECT_EQ(SchrijfPdf(pad, Proeftekening(),
                       Vellen{100, 100, 1, 1, 1, 0, {{{0, 0, 100, 100}, {0, 0}, 0, 0}}}),
            std::nullopt);
  EXPECT_TRUE(LeesBytes(pad).starts_with("%PDF-"));
  EXPECT_FALSE(QFile::exists(map_.filePath(QStringLiteral("een.pdf.~"))));
}

}  // namespace
}  // namespace lb77
