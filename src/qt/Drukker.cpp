#include "qt/Drukker.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <algorithm>

#include "qt/Afdrukvenster.h"
#include "qt/Berichtvenster.h"
#include "qt/Bladzijde.h"
#include "qt/Stijl.h"
#include "qt/Velprinter.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr int kGrootsteLetter = 12;  // points
constexpr int kPuntenPerInch = 72;
constexpr qreal kMarge = 10.5;  // mm; a device rounds to its own steps
constexpr qreal kVoet = 8;      // mm
constexpr qreal kMmPerInch = 25.4;
constexpr int kVoetLetter = 9;  // points

bool Past(const QFont& letter, QPagedPaintDevice& papier, QSizeF vlak) {
  const QFontMetricsF maten(letter, &papier);
  return maten.horizontalAdvance(u'0') * kBladKolommen <= vlak.width() &&
         maten.lineSpacing() * kBladRegels <= vlak.height();
}

void DrukPagina(QPainter& verf, const Velindeling& vel, const std::vector<std::string>& regels) {
  verf.setFont(vel.letter);
  const QFontMetricsF maten(vel.letter, verf.device());
  qreal y = vel.tekst.top() + maten.ascent();
  for (const std::string& regel : regels) {
    verf.drawText(QPointF(vel.tekst.left(), y), NaarQt(regel));
    y += maten.lineSpacing();
  }
}

void DrukVoet(QPainter& verf, const Velindeling& vel, std::size_t nummer, std::size_t totaal) {
  verf.setFont(vel.voetletter);
  verf.drawText(vel.voet, Qt::AlignRight | Qt::AlignBottom,
                QStringLiteral("%1 van %2").arg(nummer).arg(totaal));
}

// Why a device takes no more sheets, as far as it tells.
std::string Reden(const QPagedPaintDevice& papier) {
  const auto* const printer = dynamic_cast<const QPrinter*>(&papier);
  const QString bestand = printer ? printer->outputFileName() : QString();
  if (!bestand.isEmpty()) {
    return "Het bestand " + VanQt(bestand).tekst + " kan niet worden geschreven";
  }
  const QString naam = printer ? printer->printerName() : QString();
  const std::string wie =
      naam.isEmpty() ? std::string("De printer") : "De printer " + VanQt(naam).tekst;
  return wie + " is niet te bereiken, of neemt de opdracht niet aan";
}

// So many millimetres must come on top of what the device leaves white by itself.
qreal Erbij(qreal marge, qreal dotsPerMm) {
  return std::max(kMarge - marge, 0.0) * dotsPerMm;
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

Afdruk ZonderLegeVellen(const Afdruk& afdruk) {
  Afdruk uit = afdruk;
  std::erase_if(uit.paginas,
                [](const std::vector<std::string>& pagina) { return !StaatErIets(pagina); });
  return uit;
}

Afdruk Deel(const Afdruk& afdruk, std::size_t van, std::size_t tot) {
  Afdruk uit{afdruk.titel, {}, van, Totaal(afdruk)};
  for (std::size_t nr = van; nr <= tot; ++nr) {
    uit.paginas.push_back(afdruk.paginas.at(nr - afdruk.eerste));
  }
  return uit;
}

std::size_t Totaal(const Afdruk& afdruk) {
  return afdruk.totaal > 0 ? afdruk.totaal : afdruk.paginas.size();
}

void StelPapierIn(QPagedPaintDevice& papier) {
  papier.setPageSize(QPageSize(QPageSize::A4));
  papier.setPageOrientation(QPageLayout::Portrait);
  papier.setPageMargins(QMarginsF(kMarge, kMarge, kMarge, kMarge), QPageLayout::Millimeter);
}

Velindeling DeelIn(QPagedPaintDevice& papier) {
  const QMarginsF wit = papier.pageLayout().margins(QPageLayout::Millimeter);
  const qreal x = papier.logicalDpiX() / kMmPerInch;
  const qreal y = papier.logicalDpiY() / kMmPerInch;
  const QRectF vlak = QRectF(0, 0, papier.width(), papier.height())
                          .adjusted(Erbij(wit.left(), x), Erbij(wit.top(), y),
                                    -Erbij(wit.right(), x), -Erbij(wit.bottom(), y));
  Velindeling vel;
  vel.tekst = vlak.adjusted(0, 0, 0, -kVoet * y);
  vel.voet = QRectF(QPointF(vlak.left(), vel.tekst.bottom()), vlak.bottomRight());
  vel.letter = Drukletter(papier, vel.tekst.size(), papier.logicalDpiY());
  vel.voetletter = vel.letter;
  vel.voetletter.setPixelSize(std::max(kVoetLetter * papier.logicalDpiY() / kPuntenPerInch, 1));
  // The block of text stands in the middle of the sheet.
  const qreal breedte = QFontMetricsF(vel.letter, &papier).horizontalAdvance(u'0') * kBladKolommen;
  const qreal rand = std::max((vlak.width() - breedte) / 2, 0.0);
  vel.tekst.adjust(rand, 0, -rand, 0);
  vel.voet.adjust(rand, 0, -rand, 0);
  return vel;
}

bool Druk(QPagedPaintDevice& papier, const Afdruk& afdruk) {
  QPainter verf;
  if (!verf.begin(&papier)) return false;
  const Velindeling vel = DeelIn(papier);
  std::size_t nummer = afdruk.eerste;
  for (const std::vector<std::string>& pagina : afdruk.paginas) {
    if (nummer > afdruk.eerste && !papier.newPage()) return false;
    DrukPagina(verf, vel, pagina);
    DrukVoet(verf, vel, nummer++, Totaal(afdruk));
  }
  return verf.end();
}

bool DrukOfMeld(QWidget* ouder, QPagedPaintDevice& papier, const Afdruk& afdruk) {
  auto* const teller = dynamic_cast<Velprinter*>(&papier);
  if (teller) teller->Begin(ouder, afdruk.paginas.size());
  const bool gedrukt = Druk(papier, afdruk);
  if (teller) teller->Klaar();
  if (teller && teller->Gestopt()) return false;
  const auto* printer = dynamic_cast<const QPrinter*>(&papier);
  if (gedrukt && !(printer && printer->printerState() == QPrinter::Error)) return true;
  static_cast<void>(ToonBericht(ouder, BerichtSoort::Stop, Knoppen::OK,
                                "Fout bij het printen van de tekst.\n" + Reden(papier)));
  return false;
}

bool VraagEnDrukAf(QWidget* ouder, const Afdruk& afdruk, VensterInstellingen& instellingen) {
  const Afdruk vol = ZonderLegeVellen(afdruk);
  if (vol.paginas.empty()) {
    static_cast<void>(ToonBericht(ouder, BerichtSoort::Uitroep, Knoppen::OK,
                                  "Hier staat niets om af te drukken."));
    return false;
  }
  Afdrukvenster venster(ouder, vol, instellingen);
  return venster.exec() == QDialog::Accepted;
}

}  // namespace lb77
