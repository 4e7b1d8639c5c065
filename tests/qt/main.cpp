// The test program of the windows: GoogleTest within an application object.
#include <gtest/gtest.h>

#include <QApplication>
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

}  // namespace

int main(int argc, char** argv) {
  // The smallest screen that every window must fit.
  const std::string scherm = (lb77::BronMap() / "tests/qt/scherm.json").string();
  qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString("offscreen:configfile=" + scherm));
  qInstallMessageHandler(Melding);
  testing::InitGoogleTest(&argc, argv);
  QApplication toepassing(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  lb77::ZetStijl(toepassing);
  return RUN_ALL_TESTS();
}
