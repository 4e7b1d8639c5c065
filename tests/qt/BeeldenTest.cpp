// The pictures of the manual, taken of the real windows with the sample family. tools/beelden puts
// them in docs/beeld.
#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>

#include "Toetsenbord.h"
#include "app/Klok.h"
#include "program/Vensterloop.h"
#include "qt/Vertaling.h"
#include "steun/Plekken.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

// A viewer is called after what it shows, any other window after its form.
QString Bestandsnaam(const QWidget& venster) {
  QString naam = venster.objectName();
  if (naam == QLatin1String("ToonTekst")) naam = venster.windowTitle();
  naam.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9]+")), QStringLiteral("-"));
  return naam.toLower() + QStringLiteral(".png");
}

class BeeldenTest : public Toetsenbord {
 protected:
  BeeldenTest() {
    map_.removeRecursively();
    map_.mkpath(QStringLiteral("."));
  }

  void Toon(const Instructie&) override {
    const QString naam = Bestandsnaam(Bovenste());
    EXPECT_FALSE(map_.exists(naam)) << naam.toStdString() << " twice";
    EXPECT_TRUE(Bovenste().grab().save(map_.filePath(naam)));
  }

  QDir map_{PadNaarQt(BouwMap() / "beelden")};
};

TEST_F(BeeldenTest, StaanInDeHandleiding) {
  const TijdelijkeMap tijdelijk;
  // tools/beelden gives a directory whose name is the same on every machine.
  const QString gegeven = qEnvironmentVariable("LB77_BEELDEN");
  const std::filesystem::path thuis = gegeven.isEmpty() ? tijdelijk.Pad() : PadVanQt(gegeven);
  const VasteKlok klok{{2026, 1, 2, 3, 4, 5}};
  Neem(LeesBytes(BronMap() / "tests/qt/beelden.txt"));
  VoerVoorGebruiker(gesprek, klok, {thuis, {BronMap()}, std::nullopt});
  EXPECT_TRUE(Klaar()) << Hier();
  for (const QString& naam : map_.entryList({QStringLiteral("*.png")})) {
    EXPECT_TRUE(std::filesystem::exists(BronMap() / "docs/beeld" / PadVanQt(naam)))
        << naam.toStdString() << ": run tools/beelden";
  }
}

}  // namespace
}  // namespace lb77
