#include "qt/Afdrukvenster.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>

#include "app/HeelBestand.h"
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

void MeldFout(QWidget* ouder, const std::string& tekst) {
  static_cast<void>(ToonBericht(ouder, BerichtSoort::Stop, Knoppen::OK, tekst));
}

}  // namespace

SysteemFout SchrijfPdf(const QString& pad, const Afdruk& afdruk) {
  QBuffer inhoud;
  inhoud.open(QIODevice::WriteOnly);
  {
    QPdfWriter papier(&inhoud);
    papier.setResolution(kPdfDpi);
    papier.setTitle(NaarQt(afdruk.titel));
    papier.setCreator(QStringLiteral("LB77"));
    StelPapierIn(papier);
    if (!Druk(papier, afdruk)) return FoutNietOpen();
  }
  const std::filesystem::path naar = PadVanQt(pad);
  std::filesystem::path naast = naar;
  naast += ".nieuw";
  Bestandswerk werk;
  const QByteArray& bytes = inhoud.data();
  SysteemFout fout =
      werk.Maak(naast, {bytes.constData(), static_cast<std::size_t>(bytes.size())}).fout;
  if (!fout) fout = werk.Hernoem(naast, naar);
  if (fout) static_cast<void>(werk.Verwijder(naast));
  return fout;
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
  MaakBladerrij();
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

// A row of its own: with large letters all the buttons would be wider than the screen.
void Afdrukvenster::MaakBladerrij() {
  vorige_ = MaakKnop("VorigVel", QStringLiteral("&Vorig vel"));
  volgende_ = MaakKnop("VolgendVel", QStringLiteral("Vol&gend vel"));
  vel_ = new QLabel(this);
  vel_->setObjectName(QStringLiteral("Vel"));
  auto* groter = MaakKnop("Groter", QStringLiteral("G&roter"));
  auto* kleiner = MaakKnop("Kleiner", QStringLiteral("&Kleiner"));
  auto* rij = new QHBoxLayout;
  for (QWidget* een : {static_cast<QWidget*>(vorige_), static_cast<QWidget*>(vel_),
                       static_cast<QWidget*>(volgende_)}) {
    rij->addWidget(een);
  }
  rij->addStretch(1);
  rij->addWidget(groter);
  rij->addWidget(kleiner);
  static_cast<QVBoxLayout*>(layout())->addLayout(rij);
  connect(vorige_, &QPushButton::clicked, this, [this] { Toon(beeld_->currentPage() - 1); });
  connect(volgende_, &QPushButton::clicked, this, [this] { Toon(beeld_->currentPage() + 1); });
  connect(beeld_, &QPrintPreviewWidget::previewChanged, this,
          [this] { Toon(beeld_->currentPage()); });
  connect(groter, &QPushButton::clicked, beeld_, [this] { beeld_->zoomIn(); });
  connect(kleiner, &QPushButton::clicked, beeld_, [this] { beeld_->zoomOut(); });
}

void Afdrukvenster::MaakKnoppen() {
  auto* druk = MaakKnop("Afdrukken", QStringLiteral("&Afdrukken ..."));
  auto* pdf = MaakKnop("AlsPdf", QStringLiteral("Als &PDF opslaan ..."));
  auto* terug = MaakKnop("Terug", QStringLiteral("&Terug"));
  auto* rij = new QHBoxLayout;
  rij->addStretch(1);
  for (QPushButton* een : {druk, pdf, terug}) rij->addWidget(een);
  static_cast<QVBoxLayout*>(layout())->addLayout(rij);
  connect(druk, &QPushButton::clicked, this, [this] { Druk(); });
  connect(pdf, &QPushButton::clicked, this, [this] { BewaarPdf(); });
  connect(terug, &QPushButton::clicked, this, &QDialog::reject);
  druk->setFocus();
}

void Afdrukvenster::Toon(int vel) {
  const auto hier = static_cast<int>(afdruk_.paginas.size());
  const int nu = std::clamp(vel, 1, hier);
  if (beeld_->currentPage() != nu) beeld_->setCurrentPage(nu);
  const std::size_t nummer = afdruk_.eerste + static_cast<std::size_t>(nu) - 1;
  vel_->setText(QStringLiteral("vel %1 van %2").arg(nummer).arg(Totaal(afdruk_)));
  vorige_->setEnabled(nu > 1);
  volgende_->setEnabled(nu < hier);
}

void Afdrukvenster::Druk() {
  QPrintDialog vraag(&printer_, this);
  vraag.setWindowTitle(QStringLiteral("Afdrukken"));
  const auto eerste = static_cast<int>(afdruk_.eerste);
  const int laatste = eerste + static_cast<int>(afdruk_.paginas.size()) - 1;
  vraag.setOption(QAbstractPrintDialog::PrintPageRange, laatste > eerste);
  vraag.setMinMax(eerste, laatste);
  vraag.setFromTo(eerste, laatste);
  if (vraag.exec() != QDialog::Accepted) return;
  const bool enkele = vraag.printRange() == QAbstractPrintDialog::PageRange;
  const int van = enkele ? std::clamp(vraag.fromPage(), eerste, laatste) : eerste;
  const int tot = enkele ? std::clamp(vraag.toPage(), van, laatste) : laatste;
  const Afdruk deel = Deel(afdruk_, static_cast<std::size_t>(van), static_cast<std::size_t>(tot));
  if (DrukOfMeld(this, printer_, deel)) accept();
}

void Afdrukvenster::BewaarPdf() {
  const BestandsVraag vraag{BestandsWijze::Opslaan, "PDF-bestanden (*.pdf)|*.pdf", {}};
  const auto naam = PadVanQt(Bestandsnaam(NaarQt(afdruk_.titel)));
  const auto pad = KiesOpslag(this, vraag, naam, instellingen_);
  if (!pad) return;
  if (const SysteemFout fout = SchrijfPdf(PadNaarQt(*pad), afdruk_)) {
    return MeldFout(this, "Fout bij het opslaan van de tekst.\n" + fout.tekst);
  }
  static_cast<void>(ToonBericht(this, BerichtSoort::Info, Knoppen::OK, "De tekst is opgeslagen."));
}

}  // namespace lb77
