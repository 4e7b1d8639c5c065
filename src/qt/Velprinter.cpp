#include "qt/Velprinter.h"

namespace lb77 {

namespace {

constexpr std::size_t kWeinig = 50;

void Toon(QProgressDialog& teller, int vel) {
  teller.setLabelText(
      QStringLiteral("Vel %1 van %2 wordt opgemaakt ...").arg(vel).arg(teller.maximum()));
  teller.setValue(vel - 1);  // at the last it would close
}

}  // namespace

void Velprinter::Begin(QWidget* ouder, std::size_t vellen) {
  gestopt_ = false;
  vel_ = 1;
  teller_.reset();
  if (vellen <= kWeinig) return;
  teller_ = std::make_unique<QProgressDialog>(ouder);
  teller_->setObjectName(QStringLiteral("Velteller"));
  teller_->setWindowTitle(QStringLiteral("Afdrukken"));
  teller_->setCancelButtonText(QStringLiteral("&Afbreken"));
  teller_->setWindowModality(Qt::ApplicationModal);
  // Escape in it is a wish to stop, not to look no more.
  QObject::connect(teller_.get(), &QDialog::rejected, teller_.get(), &QProgressDialog::cancel);
  teller_->setMinimumDuration(0);
  teller_->setRange(0, static_cast<int>(vellen));
  Toon(*teller_, vel_);
}

bool Velprinter::newPage() {
  if (teller_ && !teller_->wasCanceled()) Toon(*teller_, ++vel_);
  gestopt_ = teller_ && teller_->wasCanceled();
  return !gestopt_ && QPrinter::newPage();
}

}  // namespace lb77
