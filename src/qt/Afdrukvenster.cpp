#include "qt/Afdrukvenster.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QSaveFile>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/Berichtvenster.h"
#include "qt/Bestandsvenster.h"
#include "qt/Drukker.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr int kPdfDpi = 600;
constexpr qreal kBreedte = 0.7;  // of the screen
constexpr qreal kHoogte = 0.85;
constexpr const char* kVoorbeeldnaam = "Voorbeeld van de vellen";

// What a name of a file may not hold on every system.
QString Bestandsnaam(QString titel) {
  for (QChar& teken : titel) {
    if (QStringLiteral("/\\:*?\"<>|").contains(teken)) teken = u'-';
  }
  return titel + QStringLiteral(".pdf");
}

void MeldFout(QWidget* ouder, const char* tekst) {
  static_cast<void>(ToonBericht(ouder, BerichtSoort::Stop, Knoppen::OK, tekst));
}

}  // namespace

bool SchrijfPdf(const QString& pad, const Afdruk& afdruk) {
  QSaveFile bestand(pad);
  if (!bestand.open(QIODevice::WriteOnly)) return false;
  {
    QPdfWriter papier(&bestand);
    papier.setResolution(kPdfDpi);
    papier.setTitle(NaarQt(afdruk.titel));
    papier.setCreator(QStringLiteral("LB77"));
    StelPapierIn(papier);
    if (!Druk(papier, afdruk)) return false;
  }
  return bestand.commit();
}

Afdrukvenster::Afdrukvenster(QWidget* ouder, const Afdruk& afdruk,
                             VensterInstellingen& instellingen)
    : QDialog(ouder), afdruk_(afdruk), instellingen_(instellingen) {
  setObjectName(QStringLiteral("Afdrukvenster"));
  setWindowTitle(QStringLiteral("Afdrukvoorbeeld - ") + NaarQt(afdruk.titel));
  setWindowModality(Qt::ApplicationModal);
  setWindowFlag(Qt::WindowMaximizeButtonHint, true);
  printer_.setDocName(NaarQt(afdruk.titel));
  StelPapierIn(printer_);
  beeld_ = new QPrintPreviewWidget(&printer_, this);
  beeld_->setAccessibleName(QString::fromLatin1(kVoorbeeldnaam));
  QObject::connect(beeld_, &QPrintPreviewWidget::paintRequested, this, [this] {
    printer_.Begin(this, afdruk_.paginas.size());
    static_cast<void>(lb77::Druk(printer_, afdruk_));
    printer_.Klaar();
    // Half of the sheets is no look at what would be printed.
    if (!printer_.Gestopt()) return;
    QMetaObject::invokeMethod(this, &QDialog::reject, Qt::QueuedConnection);
  });
  auto* kolom = new QVBoxLayout(this);
  kolom->addWidget(beeld_, 1);
  MaakKnoppen();
  const QScreen* scherm = QGuiApplication::primaryScreen();
  if (scherm) {
    const QSize ruimte = scherm->availableSize();
    resize(static_cast<int>(ruimte.width() * kBreedte),
           static_cast<int>(ruimte.height() * kHoogte));
  }
  beeld_->setViewMode(QPrintPreviewWidget::SinglePageView);
  beeld_->fitInView();
  Toon(1);
}

QPushButton* Afdrukvenster::MaakKnop(const char* naam, const QString& bijschrift) {
  auto* knop = new QPushButton(bijschrift, this);
  knop->setObjectName(QString::fromLatin1(naam));
  knop->setAutoDefault(false);
  return knop;
}

void Afdrukvenster::MaakKnoppen() {
  vorige_ = MaakKnop("VorigVel", QStringLiteral("&Vorig vel"));
  volgende_ = MaakKnop("VolgendVel", QStringLiteral("Vol&gend vel"));
  vel_ = new QLabel(this);
  vel_->setObjectName(QStringLiteral("Vel"));
  auto* groter = MaakKnop("Groter", QStringLiteral("G&roter"));
  auto* kleiner = MaakKnop("Kleiner", QStringLiteral("&Kleiner"));
  auto* druk = MaakKnop("Afdrukken", QStringLiteral("&Afdrukken ..."));
  auto* pdf = MaakKnop("AlsPdf", QStringLiteral("Als &PDF opslaan ..."));
  auto* terug = MaakKnop("Terug", QStringLiteral("&Terug"));
  auto* rij = new QHBoxLayout;
  for (QWidget* een : {static_cast<QWidget*>(vorige_), static_cast<QWidget*>(vel_),
                       static_cast<QWidget*>(volgende_), static_cast<QWidget*>(groter),
                       static_cast<QWidget*>(kleiner)}) {
    rij->addWidget(een);
  }
  rij->addStretch(1);
  for (QPushButton* een : {druk, pdf, terug}) rij->addWidget(een);
  static_cast<QVBoxLayout*>(layout())->addLayout(rij);
  connect(vorige_, &QPushButton::clicked, this, [this] { Toon(beeld_->currentPage() - 1); });
  connect(volgende_, &QPushButton::clicked, this, [this] { Toon(beeld_->currentPage() + 1); });
  connect(beeld_, &QPrintPreviewWidget::previewChanged, this,
          [this] { Toon(beeld_->currentPage()); });
  connect(groter, &QPushButton::clicked, beeld_, [this] { beeld_->zoomIn(); });
  connect(kleiner, &QPushButton::clicked, beeld_, [this] { beeld_->zoomOut(); });
  connect(druk, &QPushButton::clicked, this, [this] { Druk(); });
  connect(pdf, &QPushButton::clicked, this, [this] { BewaarPdf(); });
  connect(terug, &QPushButton::clicked, this, &QDialog::reject);
  druk->setFocus();
}

void Afdrukvenster::Toon(int vel) {
  const auto totaal = static_cast<int>(afdruk_.paginas.size());
  const int nu = std::clamp(vel, 1, totaal);
  if (beeld_->currentPage() != nu) beeld_->setCurrentPage(nu);
  vel_->setText(QStringLiteral("vel %1 van %2").arg(nu).arg(totaal));
  vorige_->setEnabled(nu > 1);
  volgende_->setEnabled(nu < totaal);
}

void Afdrukvenster::Druk() {
  QPrintDialog vraag(&printer_, this);
  vraag.setWindowTitle(QStringLiteral("Afdrukken"));
  vraag.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (vraag.exec() != QDialog::Accepted) return;
  if (DrukOfMeld(this, printer_, afdruk_)) accept();
}

void Afdrukvenster::BewaarPdf() {
  const BestandsVraag vraag{BestandsWijze::Opslaan, "PDF-bestanden (*.pdf)|*.pdf", {}};
  const auto naam = PadVanQt(Bestandsnaam(NaarQt(afdruk_.titel)));
  const auto pad = KiesOpslag(this, vraag, naam, instellingen_);
  if (!pad) return;
  if (SchrijfPdf(PadNaarQt(*pad), afdruk_)) {
    static_cast<void>(
        ToonBericht(this, BerichtSoort::Info, Knoppen::OK, "De tekst is opgeslagen."));
  } else {
    MeldFout(this, "Fout bij het opslaan van de tekst.");
  }
}

}  // namespace lb77
