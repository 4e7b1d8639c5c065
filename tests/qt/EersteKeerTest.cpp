// A first-time user's story on the real windows: from no settings file to a Kwartierstaat on paper,
// and everything as it was left when the program is started again.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>
#include <utility>

#include "Formulierproef.h"
#include "Toetsenbord.h"
#include "app/Klok.h"
#include "program/Vensterloop.h"
#include "qt/Afdrukvenster.h"
#include "qt/Hoofdvenster.h"
#include "qt/Vertaling.h"
#include "steun/Plekken.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

constexpr QPoint kPlek(70, 110);
constexpr QSize kMaat(940, 600);

class EersteKeerTest : public Toetsenbord {
 protected:
  // What the user sees when the main window has come up.
  struct Beeld {
    QPoint plek;
    QSize maat;
    QString kop;
    QString telling;
    QStringList gezien;
  };

  EersteKeerTest() {
    QObject::connect(&oog_, &QTimer::timeout, &oog_, [this] { Kijk(); });
    oog_.start(1);
  }
  void Draai() {
    gezien_ = false;
    QtGesprek deur(map_.Pad());  // as a new run has it: with the sizes that were kept
    VoerVoorGebruiker(deur, klok_, {map_.Pad(), {BronMap()}, std::nullopt});
  }

  static Beeld Zie(QWidget& venster) {
    Beeld beeld{venster.pos(), venster.size(), {}, {}, {}};
    beeld.kop = venster.findChild<QLabel*>("StartKop")->text();
    beeld.telling = venster.findChild<QLabel*>("StartTelling")->text();
    const auto* lijst = venster.findChild<QListWidget*>("GezienLijst");
    for (int i = 0; i < lijst->count(); ++i) beeld.gezien += lijst->item(i)->text();
    return beeld;
  }

  TijdelijkeMap map_;
  VasteKlok klok_{{2026, 1, 2, 3, 4, 5}};
  std::function<void(QWidget&)> bijHoofdvenster_;  // once a run, when the main window is there
  int afgedrukt_ = 0;

 private:
  void Kijk() {
    auto* beeld = dynamic_cast<Afdrukvenster*>(QApplication::activeModalWidget());
    if (beeld && !std::exchange(voorbeeld_, true)) {
      // Not from here: the clock stands still while its own tick is at work.
      auto* druk = beeld->findChild<QPushButton*>("Afdrukken");
      QMetaObject::invokeMethod(
          druk, [druk] { druk->click(); }, Qt::QueuedConnection);
    }
    if (auto* vraag = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
      vraag->printer()->setOutputFormat(QPrinter::PdfFormat);
      vraag->printer()->setOutputFileName(PadNaarQt(map_ / "kwartierstaat.pdf"));
      if (auto* naam = vraag->findChild<QLineEdit*>("filename")) {
        naam->setText(PadNaarQt(map_ / "kwartierstaat.pdf"));
      }
      ++afgedrukt_;
      static_cast<QDialog*>(vraag)->accept();
    }
    auto* hoofd = dynamic_cast<Hoofdvenster*>(QApplication::activeWindow());
    if (gezien_ || !hoofd || !hoofd->isVisible()) return;
    gezien_ = true;
    if (bijHoofdvenster_) bijHoofdvenster_(*hoofd);
  }

  QTimer oog_;
  bool gezien_ = false;
  bool voorbeeld_ = false;  // the sheets have been seen
};

TEST_F(EersteKeerTest, VanNietsNaarEenKwartierstaatOpPapierEnAllesBlijft) {
  const std::string voorbeeld = (BronMap() / "voorbeeld/oranje-nassau.ged").string();
  Neem(R"(
      druk NieuweFamilie
      vul SetNaam oranje
      vul SetOmsch Huis Oranje-Nassau
      druk OKButton
      kies ImportGedcom
      vul Bestandsnaam )" +
       voorbeeld + R"(
      druk OKButton
      druk BackButton
      druk BackButton
      druk ZoekButton
      druk FilterButton
      vul VoorNm Beatrix*
      vul AchterNm *
      druk OKButton
      druk RecordNrPrs(1)
      druk WijzigButton
      vul GebDatum 30-01-1938
      druk Opslaan
      druk BackButton
      druk KwstButton
      vul RecordNr 2
      druk OKButton
      druk OKButton
      druk PrintButton(2)
      druk BackButton
      kies KeuzeAfsluiten
  )");
  bijHoofdvenster_ = [](QWidget& venster) {
    venster.move(kPlek);
    venster.resize(kMaat);
  };
  Draai();
  EXPECT_TRUE(Klaar()) << Hier();
  EXPECT_EQ(afgedrukt_, 1);
  QFile pdf(PadNaarQt(map_ / "kwartierstaat.pdf"));
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_TRUE(pdf.readAll().startsWith("%PDF-"));

  Beeld beeld;
  bijHoofdvenster_ = [&beeld](QWidget& venster) {
    beeld = Zie(venster);
    dynamic_cast<Hoofdvenster&>(venster).Actie("KeuzeAfsluiten")->trigger();
  };
  Draai();
  EXPECT_EQ(beeld.plek, kPlek);
  EXPECT_EQ(beeld.maat, kMaat);
  EXPECT_EQ(beeld.kop, QString("Huis Oranje-Nassau (ORANJE)"));
  EXPECT_TRUE(beeld.telling.startsWith(QLatin1String("254 personen, ")))
      << beeld.telling.toStdString();
  ASSERT_EQ(beeld.gezien.size(), 1);
  EXPECT_TRUE(beeld.gezien.front().contains(QLatin1String("Beatrix")))
      << beeld.gezien.front().toStdString();
}

// Pictures of the start page, to be looked at.
class StartbladBeeldTest : public Formulierproef {};

TEST_F(StartbladBeeldTest, MetEnZonderFamilie) {
  const TijdelijkeMap map;
  const VasteKlok klok{{2026, 1, 2, 3, 4, 5}};
  int stap = 0;
  QTimer oog;
  QObject::connect(&oog, &QTimer::timeout, &oog, [&] {
    QWidget* venster = QApplication::activeModalWidget();
    if (stap == 0 && venster && venster->objectName() == QLatin1String("Welkom")) {
      ++stap;
      // Behind this look, which does not come again while it lasts.
      QTimer::singleShot(0, venster, [venster] {
        venster->findChild<QAbstractButton*>("Voorbeeldfamilie")->click();
      });
      return;
    }
    auto* hoofd = dynamic_cast<Hoofdvenster*>(QApplication::activeWindow());
    if (!hoofd || venster || !hoofd->isVisible()) return;
    auto* telling = hoofd->findChild<QLabel*>("StartTelling");
    if (stap == 1 && telling->isVisible() && telling->text().startsWith(QLatin1String("254 "))) {
      ++stap;
      Bewaar(*hoofd, "StartbladMetFamilie");
      EXPECT_FALSE(hoofd->findChild<QWidget*>("NieuweFamilie")->isVisible());
      hoofd->Actie("KeuzeAfsluiten")->trigger();
    } else if (stap == 2 && !telling->isVisible()) {
      ++stap;
      Bewaar(*hoofd, "StartbladZonderFamilie");
      EXPECT_TRUE(hoofd->findChild<QWidget*>("NieuweFamilie")->isVisible());
      hoofd->Actie("KeuzeAfsluiten")->trigger();
    }
  });
  oog.start(1);
  const Opstart opstart{map.Pad(), {BronMap()}, std::nullopt};
  VoerVoorGebruiker(gesprek, klok, opstart);
  EXPECT_EQ(stap, 2);
  SchrijfBytes(map / "LIJNBOOM.INI", "[Genealogie]\r\nDatumForm=0\r\n");
  VoerVoorGebruiker(gesprek, klok, opstart);
  EXPECT_EQ(stap, 3);
}

}  // namespace
}  // namespace lb77
