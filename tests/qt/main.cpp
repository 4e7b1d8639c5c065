// The test program of the windows: GoogleTest within an application object.
#include <gtest/gtest.h>

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <cstdio>

#include "qt/Stijl.h"
#include "steun/Plekken.h"

namespace {

// The platform without a screen tells on each window what it cannot do.
void Melding(QtMsgType, const QMessageLogContext&, const QString& tekst) {
  if (!tekst.startsWith(QLatin1String("This plugin does not support"))) {
    std::fputs(qPrintable(tekst + u'\n'), stderr);
  }
}

// What tools/schermen asks: larger letters, a dark desktop. The pictures of the tests show it.
void ZetUiterlijk() {
  const int punten = qEnvironmentVariableIntValue("LB77_LETTER");
  if (punten > 0) {
    QFont letter = QApplication::font();
    letter.setPointSize(punten);
    QApplication::setFont(letter);
  }
  if (qEnvironmentVariableIsSet("LB77_DONKER")) {
    QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35)));
  }
}

}  // namespace

int main(int argc, char** argv) {
  // The smallest screen that every window must fit.
  const QByteArray ander = qgetenv("LB77_SCHERM");
  const std::string scherm =
      ander.isEmpty() ? (lb77::BronMap() / "tests/qt/scherm.json").string() : ander.toStdString();
  qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString("offscreen:configfile=" + scherm));
  qInstallMessageHandler(Melding);
  testing::InitGoogleTest(&argc, argv);
  QApplication toepassing(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ZetUiterlijk();
  lb77::ZetStijl(toepassing);
  return RUN_ALL_TESTS();
}
