// Pages on paper.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>

#include "qt/Afdrukvenster.h"
#include "qt/Bladzijde.h"
#include "qt/Drukker.h"
#include "qt/Velprinter.h"
#include "qt/Vertaling.h"
#include "steun/Plekken.h"
#include "steun/SpeelToets.h"

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
  // The feet of the sheets.
  [[nodiscard]] QStringList Tekst(const Afdruk& afdruk) const {
    EXPECT_FALSE(SchrijfPdf(Pad("voet.pdf"), afdruk));
    QProcess lezer;
    lezer.start("pdftotext", {"-layout", Pad("voet.pdf"), "-"});
    EXPECT_TRUE(lezer.waitForFinished()) << "pdftotext";
    QStringList uit;
    for (const QString& regel : QString::fromUtf8(lezer.readAllStandardOutput()).split(u'\n')) {
      if (regel.contains(QLatin1String(" van "))) uit += regel.trimmed();
    }
    return uit;
  }
  static int Paginas(const QString& pad) {
    QFile bestand(pad);
    EXPECT_TRUE(bestand.open(QIODevice::ReadOnly));
    return static_cast<int>(bestand.readAll().count("/Type /Page\n"));
  }
};

// Looks at the count of the sheets at each turn of the event loop, and may stop it.
class Telkijker {
 public:
  explicit Telkijker(bool stopt) {
    QObject::connect(&oog_, &QTimer::timeout, &oog_, [this, stopt] {
      for (QWidget* een : QApplication::topLevelWidgets()) {
        auto* teller = qobject_cast<QProgressDialog*>(een);
        if (!teller || !teller->isVisible()) continue;
        gezien += teller->labelText();
        if (stopt) QTest::keyClick(teller, Qt::Key_Escape);
      }
    });
    oog_.start(0);
  }
  QStringList gezien;

 private:
  QTimer oog_;
};

TEST_F(DrukkerTest, VeelVellenWordenGeteld) {
  Velprinter papier;
  papier.setOutputFileName(Pad("veel.pdf"));
  StelPapierIn(papier);
  const Telkijker kijker(false);
  EXPECT_TRUE(DrukOfMeld(nullptr, papier, Proefdruk(60)));
  EXPECT_EQ(Paginas(Pad("veel.pdf")), 60);
  EXPECT_TRUE(kijker.gezien.contains(QStringLiteral("Vel 59 van 60 wordt opgemaakt ...")));
  EXPECT_TRUE(kijker.gezien.contains(QStringLiteral("Vel 60 van 60 wordt opgemaakt ...")));
  EXPECT_FALSE(papier.Gestopt());
}

TEST_F(DrukkerTest, WeinigVellenGaanZonderTelling) {
  Velprinter papier;
  papier.setOutputFileName(Pad("weinig.pdf"));
  const Telkijker kijker(false);
  EXPECT_TRUE(DrukOfMeld(nullptr, papier, Proefdruk(50)));
  QApplication::processEvents();
  EXPECT_TRUE(kijker.gezien.isEmpty());
}

TEST_F(DrukkerTest, EscapeHoudtHetAfdrukkenOp) {
  Velprinter papier;
  papier.setOutputFileName(Pad("gestopt.pdf"));
  const Telkijker kijker(true);
  EXPECT_FALSE(DrukOfMeld(nullptr, papier, Proefdruk(60)));  // and no box
  EXPECT_TRUE(papier.Gestopt());
  EXPECT_EQ(kijker.gezien.size(), 1);
  papier.setOutputFileName(Pad("daarna.pdf"));
  EXPECT_TRUE(DrukOfMeld(nullptr, papier, Proefdruk(2)));
  EXPECT_FALSE(papier.Gestopt());
}

TEST_F(DrukkerTest, WieHetVoorbeeldStoptIsErWeerUit) {
  VensterInstellingen instellingen{{}};
  const Afdruk veel = Proefdruk(60);
  Afdrukvenster venster(nullptr, veel, instellingen);
  const Telkijker kijker(true);
  QTimer::singleShot(20000, &venster, [&venster] { venster.accept(); });
  EXPECT_EQ(venster.exec(), QDialog::Rejected);
  EXPECT_EQ(kijker.gezien.size(), 1);
}

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
  EXPECT_EQ(tekst, QString("Fout bij het printen van de tekst.\nDe printer is niet te bereiken, of "
                           "neemt de opdracht niet aan"));
  NoteerGetoond(tekst.toStdString());
  QPdfWriter goed(Pad("druk.pdf"));
  EXPECT_TRUE(DrukOfMeld(nullptr, goed, Proefdruk(1)));
}

// The margins and the block of text in millimetres.
TEST_F(DrukkerTest, OmDeTekstIsTienMillimeterWitEnHijStaatRechtopOpA4) {
  for (const qreal eigen : {0.0, 10.0, 15.0}) {
    QPdfWriter papier(Pad("marge.pdf"));
    StelPapierIn(papier);
    papier.setPageMargins(QMarginsF(eigen, eigen, eigen, eigen), QPageLayout::Millimeter);
    EXPECT_EQ(papier.pageLayout().pageSize().id(), QPageSize::A4);
    EXPECT_EQ(papier.pageLayout().orientation(), QPageLayout::Portrait);
    const qreal mm = papier.logicalDpiX() / 25.4;
    const Velindeling vel = DeelIn(papier);
    // A device rounds its own margins.
    const qreal wit = eigen > 10 ? eigen - 0.3 : 10;
    EXPECT_GE(vel.tekst.left() / mm + eigen, wit) << eigen;
    EXPECT_NEAR(vel.tekst.top() / mm + eigen, wit, 0.8) << eigen;
    EXPECT_LE(vel.tekst.right() / mm + eigen, 210 - wit) << eigen;
    EXPECT_LE(vel.voet.bottom() / mm + eigen, 297 - wit) << eigen;
    EXPECT_GE(vel.voet.top(), vel.tekst.bottom()) << eigen;
    const QFontMetricsF maten(vel.letter, &papier);
    EXPECT_LE(maten.horizontalAdvance(u'W') * kBladKolommen, vel.tekst.width() + 1);
    EXPECT_LE(maten.lineSpacing() * kBladRegels, vel.tekst.height());
    EXPECT_GE(maten.lineSpacing() * kBladRegels, vel.tekst.height() * 0.9) << "te klein";
  }
}

TEST_F(DrukkerTest, EenVelWaarNietsOpStaatWordtNietGedrukt) {
  Afdruk afdruk = Proefdruk(4);
  afdruk.paginas[1] = {"", "   "};
  afdruk.paginas[2] = {};
  EXPECT_EQ(ZonderLegeVellen(afdruk).paginas.size(), 2U);
  EXPECT_EQ(ZonderLegeVellen(afdruk).titel, afdruk.titel);
}

TEST_F(DrukkerTest, OpElkVelStaatHetNummerVanHetTotaalEnDeTekstKomtErGoedUit) {
  Afdruk afdruk = Proefdruk(2);
  afdruk.paginas[1] = {"Zo\xEB M\xFCller \x97 \x80 5", "+--+", "|  |"};
  ASSERT_FALSE(SchrijfPdf(Pad("tekst.pdf"), afdruk));
  QProcess lezer;
  lezer.start("pdftotext", {"-layout", Pad("tekst.pdf"), "-"});
  if (!lezer.waitForStarted()) GTEST_SKIP() << "pdftotext ontbreekt";
  ASSERT_TRUE(lezer.waitForFinished());
  const QString tekst = QString::fromUtf8(lezer.readAllStandardOutput());
  for (const QString& deel : {QString("1 van 2"), QString("2 van 2"), QString(80, u'W'),
                              QString::fromUtf8("Zoë Müller — € 5"), QString("+--+")}) {
    EXPECT_TRUE(tekst.contains(deel)) << qPrintable(deel);
  }
}

TEST_F(DrukkerTest, EenPdfDieNietGeschrevenKanWordenLaatHetBestandZoalsHetWas) {
  EXPECT_EQ(SchrijfPdf(Pad("geen/map/druk.pdf"), Proefdruk(1)).tekst, "Bestand niet gevonden");
  ASSERT_FALSE(SchrijfPdf(Pad("druk.pdf"), Proefdruk(1)));
  ASSERT_TRUE(QDir(map_.path()).mkdir("druk.pdf.nieuw"));
  EXPECT_TRUE(SchrijfPdf(Pad("druk.pdf"), Proefdruk(2)));
  EXPECT_EQ(Paginas(Pad("druk.pdf")), 1);
}

TEST_F(DrukkerTest, EnkeleVellenHoudenHunNummerVanHetGeheel) {
  Afdruk los = Proefdruk(1);
  los.eerste = 7;
  los.totaal = 40;
  EXPECT_EQ(Tekst(los), QStringList("7 van 40"));
  EXPECT_EQ(Tekst(Deel(Proefdruk(5), 2, 4)), QStringList({"2 van 5", "3 van 5", "4 van 5"}));
  los.paginas = Proefdruk(3).paginas;
  EXPECT_EQ(Tekst(Deel(los, 9, 9)), QStringList("9 van 40"));
}

TEST_F(DrukkerTest, VanEenBestandDatNietGeschrevenKanWordenStaatDeNaamErbij) {
  QString tekst;
  QTimer::singleShot(0, qApp, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    tekst = box->text();
    box->reject();
  });
  QPrinter papier;
  papier.setOutputFormat(QPrinter::PdfFormat);
  papier.setOutputFileName(Pad("geen/map/druk.pdf"));
  EXPECT_FALSE(DrukOfMeld(nullptr, papier, Proefdruk(1)));
  EXPECT_EQ(tekst, QStringLiteral("Fout bij het printen van de tekst.\nHet bestand %1 kan niet "
                                  "worden geschreven")
                       .arg(Pad("geen/map/druk.pdf")));
  NoteerGetoond(tekst.toStdString());
}

// Presses a button in the preview, and then does something with what that opens.
class AfdrukvensterTest : public DrukkerTest {
 protected:
  template <class Venster>
  void Met(const char* knop, const std::function<void(Venster&)>& doe) {
    QObject::connect(&kijk_, &QTimer::timeout, &kijk_, [this, knop, doe] {
      QWidget* boven = QApplication::activeModalWidget();
      if (auto* venster = qobject_cast<Venster*>(boven)) {
        doe(*venster);
      } else if (auto* box = qobject_cast<QMessageBox*>(boven)) {
        boxen_ += box->text();
        NoteerGetoond(box->text().toStdString());
        box->accept();
      } else if (auto* beeld = dynamic_cast<Afdrukvenster*>(boven)) {
        if (++keren_ > 1) return beeld->reject();
        // Not from here: the clock stands still while its own tick is at work.
        auto* druk = beeld->findChild<QPushButton*>(QLatin1String(knop));
        QMetaObject::invokeMethod(
            druk, [druk] { druk->click(); }, Qt::QueuedConnection);
      }
    });
    kijk_.start(5);
  }
  bool Vraag(const Afdruk& afdruk) { return VraagEnDrukAf(nullptr, afdruk, instellingen_); }

  VensterInstellingen instellingen_{std::filesystem::path(map_.path().toStdString())};
  QTimer kijk_;
  QStringList boxen_;
  int keren_ = 0;
};

TEST_F(AfdrukvensterTest, AnnulerenVanDePrinterGaatTerugNaarHetVoorbeeldEnDruktNietsAf) {
  QString titel;
  Met<QPrintDialog>("Afdrukken", [&](QPrintDialog& vraag) {
    titel = vraag.windowTitle();
    vraag.reject();
  });
  EXPECT_FALSE(Vraag(Proefdruk(1)));
  EXPECT_EQ(titel, QString("Afdrukken"));
  EXPECT_EQ(keren_, 2);
}

TEST_F(AfdrukvensterTest, DePrinterKrijgtDeVellenDieErStaan) {
  Met<QPrintDialog>("Afdrukken", [&](QPrintDialog& vraag) {
    vraag.printer()->setOutputFormat(QPrinter::PdfFormat);
    vraag.printer()->setOutputFileName(Pad("printer.pdf"));
    if (auto* naam = vraag.findChild<QLineEdit*>("filename")) naam->setText(Pad("printer.pdf"));
    static_cast<QDialog&>(vraag).accept();
  });
  Afdruk afdruk = Proefdruk(3);
  afdruk.paginas[1].clear();
  EXPECT_TRUE(Vraag(afdruk));
  EXPECT_EQ(Paginas(Pad("printer.pdf")), 2);
}

TEST_F(AfdrukvensterTest, DeGebruikerKanEenDeelVanDeVellenDrukken) {
  Met<QPrintDialog>("Afdrukken", [&](QPrintDialog& vraag) {
    EXPECT_EQ(vraag.minPage(), 1);
    EXPECT_EQ(vraag.maxPage(), 5);
    vraag.printer()->setOutputFormat(QPrinter::PdfFormat);
    vraag.printer()->setOutputFileName(Pad("printer.pdf"));
    if (auto* naam = vraag.findChild<QLineEdit*>("filename")) naam->setText(Pad("printer.pdf"));
    ASSERT_TRUE(vraag.findChild<QRadioButton*>("printRange"));
    vraag.findChild<QRadioButton*>("printRange")->setChecked(true);
    vraag.findChild<QSpinBox*>("from")->setValue(2);
    vraag.findChild<QSpinBox*>("to")->setValue(3);
    static_cast<QDialog&>(vraag).accept();
  });
  EXPECT_TRUE(Vraag(Proefdruk(5)));
  EXPECT_EQ(Paginas(Pad("printer.pdf")), 2);
}

TEST_F(AfdrukvensterTest, HetVoorbeeldPastOokMetGroteLettersOpHetScherm) {
  const QFont vorige = QApplication::font();
  QFont groot = vorige;
  groot.setPointSize(18);
  QApplication::setFont(groot);
  const Afdruk afdruk = Proefdruk(2);
  Afdrukvenster venster(nullptr, afdruk, instellingen_);
  venster.show();
  EXPECT_LE(venster.minimumSizeHint().width(), 1000);
  EXPECT_LE(venster.minimumSizeHint().height(), 700);
  for (const auto* knop : venster.findChildren<QPushButton*>()) {
    EXPECT_TRUE(venster.rect().contains(knop->geometry())) << qPrintable(knop->text());
    const int nodig = knop->fontMetrics().size(Qt::TextShowMnemonic, knop->text()).width();
    EXPECT_GE(knop->width(), nodig) << qPrintable(knop->text());
  }
  venster.grab().save(PadNaarQt(BouwMap() / "schermen" / "Afdrukvoorbeeld-18.png"));
  QApplication::setFont(vorige);
}

TEST_F(AfdrukvensterTest, AlsPdfOpslaanSteltDeTitelVoorEnBlijftInHetVoorbeeld) {
  QString voorstel;
  Met<QFileDialog>("AlsPdf", [&](QFileDialog& vraag) {
    auto* naam = vraag.findChild<QLineEdit*>();
    voorstel = naam->text();
    naam->setText(Pad("bewaard.pdf"));
    static_cast<QDialog&>(vraag).accept();
  });
  Afdruk afdruk = Proefdruk(2);
  afdruk.titel = "Proef: a/b";
  EXPECT_FALSE(Vraag(afdruk));
  EXPECT_EQ(voorstel, QString("Proef- a-b.pdf"));
  EXPECT_EQ(Paginas(Pad("bewaard.pdf")), 2);
  EXPECT_EQ(boxen_, QStringList("De tekst is opgeslagen."));
}

TEST_F(AfdrukvensterTest, HetVoorbeeldBladertDoorDeVellen) {
  const Afdruk afdruk = Proefdruk(2);
  Afdrukvenster venster(nullptr, afdruk, instellingen_);
  venster.show();
  const auto knop = [&](const char* naam) {
    return venster.findChild<QPushButton*>(QLatin1String(naam));
  };
  const auto* vel = venster.findChild<QLabel*>("Vel");
  EXPECT_EQ(vel->text(), QString("vel 1 van 2"));
  EXPECT_FALSE(knop("VorigVel")->isEnabled());
  QTest::mouseClick(knop("VolgendVel"), Qt::LeftButton);
  EXPECT_EQ(vel->text(), QString("vel 2 van 2"));
  EXPECT_FALSE(knop("VolgendVel")->isEnabled());
  QTest::mouseClick(knop("VorigVel"), Qt::LeftButton);
  EXPECT_EQ(vel->text(), QString("vel 1 van 2"));
  venster.grab().save(PadNaarQt(BouwMap() / "schermen" / "Afdrukvoorbeeld.png"));
}

TEST_F(AfdrukvensterTest, WaarNietsStaatValtNietsAfTeDrukken) {
  Met<QPrintDialog>("Afdrukken", [](QPrintDialog& vraag) { vraag.reject(); });
  Afdruk afdruk = Proefdruk(1);
  afdruk.paginas[0] = {""};
  EXPECT_FALSE(Vraag(afdruk));
  EXPECT_EQ(boxen_, QStringList("Hier staat niets om af te drukken."));
  EXPECT_EQ(keren_, 0);
}

}  // namespace
}  // namespace lb77
