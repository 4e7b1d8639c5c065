#include "qt/Drukker.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>

#include "qt/Berichtvenster.h"
#include "qt/Bladzijde.h"
#include "qt/Stijl.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr int kGrootsteLetter = 12;  // points
constexpr int kPuntenPerInch = 72;

bool Past(const QFont& letter, QPagedPaintDevice& papier, QSizeF vlak) {
  const QFontMetricsF maten(letter, &papier);
  return maten.horizontalAdvance(u'0') * kBladKolommen <= vlak.width() &&
         maten.lineSpacing() * kBladRegels <= vlak.height();
}

void DrukPagina(QPainter& verf, const std::vector<std::string>& regels) {
  const QFontMetricsF maten(verf.font(), verf.device());
  qreal y = maten.ascent();
  for (const std::string& regel : regels) {
    verf.drawText(QPointF(0, y), NaarQt(regel));
    y += maten.lineSpacing();
  }
}

}  // namespace

QFont Drukletter(QPagedPaintDevice& papier, QSizeF vlak, int dpi) {
  QFont letter = VasteLetter(kGrootsteLetter);
  int dots = std::max(kGrootsteLetter * dpi / kPuntenPerInch, 1);
  do {
    letter.setPixelSize(dots);
  } while (!Past(letter, papier, vlak) && --dots > 0);
  return letter;
}

bool Druk(QPagedPaintDevice& papier, const Afdruk& afdruk) {
  QPainter verf;
  if (!verf.begin(&papier)) return false;
  verf.setFont(Drukletter(papier, QSizeF(papier.width(), papier.height()), papier.logicalDpiY()));
  for (const std::vector<std::string>& pagina : afdruk.paginas) {
    if (&pagina != &afdruk.paginas.front() && !papier.newPage()) return false;
    DrukPagina(verf, pagina);
  }
  return verf.end();
}

bool DrukOfMeld(QWidget* ouder, QPagedPaintDevice& papier, const Afdruk& afdruk) {
  const bool gedrukt = Druk(papier, afdruk);
  const auto* printer = dynamic_cast<const QPrinter*>(&papier);
  if (gedrukt && !(printer && printer->printerState() == QPrinter::Error)) return true;
  static_cast<void>(
      ToonBericht(ouder, BerichtSoort::Stop, Knoppen::OK, "Fout bij het printen van de tekst."));
  return false;
}

bool VraagEnDrukAf(QWidget* ouder, const Afdruk& afdruk) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(NaarQt(afdruk.titel));
  QPrintDialog vraag(&printer, ouder);
  vraag.setWindowTitle(QStringLiteral("Afdrukken"));
  vraag.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (vraag.exec() != QDialog::Accepted) return false;
  return DrukOfMeld(ouder, printer, afdruk);
}

}  // namespace lb77
