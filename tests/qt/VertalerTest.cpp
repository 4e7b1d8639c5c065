// What the toolkit says by itself is Dutch.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPageSetupDialog>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTranslator>
#include <memory>
#include <set>

#include "qt/Woorden.h"

namespace lb77 {
namespace {

// Stands before all others, and notes what none of them knows.
class Luisteraar final : public QTranslator {
 public:
  Luisteraar() { geladen_ = LaadNederlands(toolkit_); }
  [[nodiscard]] bool Geladen() const { return geladen_; }
  [[nodiscard]] bool isEmpty() const override { return false; }
  QString translate(const char* omgeving, const char* bron, const char* uitleg,
                    int aantal) const override {
    if (toolkit_.translate(omgeving, bron, uitleg, aantal).isNull() &&
        woorden_.translate(omgeving, bron, uitleg, aantal).isNull()) {
      onbekend.insert(std::string(omgeving) + ": " + bron);
    }
    return {};
  }
  mutable std::set<std::string> onbekend;

 private:
  QTranslator toolkit_;
  Woorden woorden_;
  bool geladen_ = false;
};

// Names of sizes of paper, of keys, and forms without words.
bool IsGeenWoord(const std::string& bron) {
  return bron.starts_with("QPageSize: ") || bron.starts_with("QShortcut: ") ||
         bron.ends_with(": %1") || bron.ends_with(": OK") || bron.ends_with(": PDF");
}

class VertalerTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(luisteraar_.Geladen()) << "package qt6-translations-l10n";
    QApplication::installTranslator(&luisteraar_);
  }
  void TearDown() override { QApplication::removeTranslator(&luisteraar_); }
  void VerwachtNederlands() {
    std::string over;
    for (const std::string& bron : luisteraar_.onbekend) {
      if (!IsGeenWoord(bron)) over += bron + "\n";
    }
    EXPECT_EQ(over, "");
  }
  // Opens it, lets it settle, and closes it.
  static void Toon(QDialog& venster) {
    venster.show();
    QApplication::processEvents();
    for (QAbstractButton* knop : venster.findChildren<QAbstractButton*>()) {
      if (knop->text().contains(QLatin1String(">>"))) knop->click();
    }
    QApplication::processEvents();
    venster.close();
  }

 private:
  Luisteraar luisteraar_;
};

TEST_F(VertalerTest, DeVragenNaarBestandenZijnNederlands) {
  const QTemporaryDir map;
  for (const auto wijze : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
    QFileDialog venster(nullptr, QString(), map.path());
    venster.setOption(QFileDialog::DontUseNativeDialog);
    venster.setAcceptMode(wijze);
    venster.setViewMode(QFileDialog::Detail);
    Toon(venster);
  }
  VerwachtNederlands();
}

TEST_F(VertalerTest, AfdrukkenEnVoorbeeldZijnNederlands) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  QPrintDialog afdrukken(&printer);
  Toon(afdrukken);
  QPrintPreviewDialog voorbeeld(&printer);
  Toon(voorbeeld);
  QPageSetupDialog papier(&printer);
  Toon(papier);
  VerwachtNederlands();
}

TEST_F(VertalerTest, MenusVanVeldenZijnNederlands) {
  QLineEdit regel;
  delete regel.createStandardContextMenu();
  QPlainTextEdit blok;
  delete blok.createStandardContextMenu();
  VerwachtNederlands();
}

}  // namespace
}  // namespace lb77
