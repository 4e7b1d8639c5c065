#include "qt/Tekenaar.h"

#include <QBuffer>
#include <QByteArray>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QPdfWriter>
#include <QPolygonF>
#include <algorithm>
#include <system_error>

#include "qt/Vertaling.h"
#include "store/Platform.h"
#include "store/PlatformNamen.h"
#include "store/SysteemFout.h"

namespace lb77 {

namespace {

constexpr int kLettermaat = 100;  // pixels; texts are drawn in it and made smaller
constexpr int kPuntenPerInch = 72;
constexpr int kStippen = 1200;  // dots an inch of a PDF
constexpr double kMerk = 12;    // points, of a mark beside the drawing
constexpr double kMerkletter = 7;

QColor InQt(const Kleur& kleur) {
  return {kleur.rood, kleur.groen, kleur.blauw};
}

QRectF InQt(const Rechthoek& vlak) {
  return {vlak.x, vlak.y, vlak.breedte, vlak.hoogte};
}

QRectF Rond(Punt midden, double straal) {
  return {midden.x - straal, midden.y - straal, 2 * straal, 2 * straal};
}

QPainterPath Pad(const Rechthoek& vlak) {
  QPainterPath pad;
  pad.addRoundedRect(InQt(vlak), vlak.straal, vlak.straal);
  return pad;
}

// The toolkit counts angles the other way.
QPainterPath Pad(const Ringdeel& ring) {
  QPainterPath pad;
  constexpr double kHeleRonde = 360;
  if (ring.binnen <= 0 && ring.tot - ring.van >= kHeleRonde) {
    pad.addEllipse(Rond(ring.midden, ring.buiten));
    return pad;
  }
  pad.arcMoveTo(Rond(ring.midden, ring.buiten), -ring.van);
  pad.arcTo(Rond(ring.midden, ring.buiten), -ring.van, ring.van - ring.tot);
  pad.arcTo(Rond(ring.midden, ring.binnen), -ring.tot, ring.tot - ring.van);
  pad.closeSubpath();
  return pad;
}

QPainterPath Pad(const Lijnstuk& lijn) {
  QPolygonF punten;
  for (const Punt& punt : lijn.punten) punten << QPointF(punt.x, punt.y);
  QPainterPath pad;
  pad.addPolygon(punten);
  return pad;
}

QPainterPath Pad(const Opschrift&) {
  return {};
}

QFont Letter(bool vet) {
  QFont letter;
  letter.setFamilies(
      {QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("Helvetica")});
  letter.setStyleHint(QFont::SansSerif);
  letter.setPixelSize(kLettermaat);
  letter.setBold(vet);
  return letter;
}

class Kwast {
 public:
  Kwast(QPainter& verf, const QRectF& deel) : verf_(verf), deel_(deel) {}

  void Teken(const Vorm& vorm) {
    std::visit([&](const auto& wat) { TekenVorm(vorm, wat); }, vorm.wat);
  }

 private:
  template <class Wat>
  void TekenVorm(const Vorm& vorm, const Wat& wat) {
    const QPainterPath pad = Pad(wat);
    const double rand = vorm.dikte;
    if (!pad.boundingRect().adjusted(-rand, -rand, rand, rand).intersects(deel_)) return;
    QPen pen(Qt::NoPen);
    if (vorm.lijn) pen = QPen(InQt(*vorm.lijn), vorm.dikte);
    pen.setJoinStyle(Qt::RoundJoin);
    if (vorm.gestippeld) pen.setDashPattern({3 / vorm.dikte, 2 / vorm.dikte});
    verf_.setPen(pen);
    verf_.setBrush(vorm.vulling ? QBrush(InQt(*vorm.vulling)) : QBrush(Qt::NoBrush));
    verf_.drawPath(pad);
  }

  // Letters of another width than those that it was laid out in are made narrower.
  void TekenVorm(const Vorm& vorm, const Opschrift& tekst) {
    const double ver = tekst.breedte + tekst.grootte;
    const QRectF om(tekst.plek.x - ver, tekst.plek.y - ver, 2 * ver, 2 * ver);
    if (!vorm.vulling || !om.intersects(deel_)) return;
    const QFont& letter = tekst.vet ? vet_ : gewoon_;
    const QString woorden = NaarQt(tekst.tekst);
    const double schaal = tekst.grootte / kLettermaat;
    const double breed = QFontMetricsF(letter).horizontalAdvance(woorden) * schaal;
    const double smaller = breed > tekst.breedte && breed > 0 ? tekst.breedte / breed : 1;
    const double deel = tekst.anker == Tekstanker::Begin    ? 0
                        : tekst.anker == Tekstanker::Midden ? 0.5
                                                            : 1;
    verf_.save();
    verf_.translate(tekst.plek.x, tekst.plek.y);
    verf_.rotate(tekst.hoek);
    verf_.translate(-deel * breed * smaller, 0);
    verf_.scale(schaal * smaller, schaal);
    verf_.setFont(letter);
    verf_.setPen(InQt(*vorm.vulling));
    verf_.drawText(QPointF(0, 0), woorden);
    verf_.restore();
  }

  QPainter& verf_;
  QRectF deel_;
  const QFont gewoon_ = Letter(false);
  const QFont vet_ = Letter(true);
};

// In the margin: where the strip begins that the next sheet has too, and which sheet this is.
void TekenMerken(QPainter& verf, const Vellen& vellen, std::size_t i) {
  const Vel& vel = vellen.vellen[i];
  const double breed = vel.deel.breedte * vellen.schaal;
  const double hoog = vel.deel.hoogte * vellen.schaal;
  verf.setPen(QPen(Qt::darkGray, 0.5));
  const auto merk = [&](double x, double y, double dx, double dy) {
    verf.drawLine(QPointF(vel.plek.x + x, vel.plek.y + y),
                  QPointF(vel.plek.x + x + dx, vel.plek.y + y + dy));
  };
  for (const double x : {vel.kolom > 0 ? vellen.overlap : -1,
                         vel.kolom + 1 < vellen.kolommen ? breed - vellen.overlap : -1}) {
    if (x < 0) continue;
    merk(x, -2, 0, -kMerk);
    merk(x, hoog + 2, 0, kMerk);
  }
  for (const double y : {vel.rij > 0 ? vellen.overlap : -1,
                         vel.rij + 1 < vellen.rijen ? hoog - vellen.overlap : -1}) {
    if (y < 0) continue;
    merk(-2, y, -kMerk, 0);
    merk(breed + 2, y, kMerk, 0);
  }
  QFont letter = Letter(false);
  const double schaal = kMerkletter / kLettermaat;
  verf.save();
  verf.translate(vel.plek.x, vel.plek.y + hoog + 2 * kMerkletter);
  verf.scale(schaal, schaal);
  verf.setFont(letter);
  verf.drawText(QPointF(2 * kLettermaat, 0),
                QStringLiteral("rij %1, kolom %2").arg(vel.rij + 1).arg(vel.kolom + 1));
  verf.restore();
}

void TekenVel(QPainter& verf, const Tekening& tekening, const Vellen& vellen, std::size_t i) {
  const Vel& vel = vellen.vellen[i];
  verf.save();
  verf.translate(vel.plek.x, vel.plek.y);
  verf.scale(vellen.schaal, vellen.schaal);
  verf.setClipRect(QRectF(0, 0, vel.deel.breedte, vel.deel.hoogte));
  verf.translate(-vel.deel.x, -vel.deel.y);
  TekenIn(verf, tekening, InQt(vel.deel));
  verf.restore();
  if (vellen.vellen.size() > 1) TekenMerken(verf, vellen, i);
}

// Beside it until it is whole: what stood there stays when it can't be.
SysteemFout ZetNeer(const std::filesystem::path& pad, const QByteArray& bytes) {
  std::filesystem::path naast = pad;
  naast += ".~";
  std::error_code code;
  static_cast<void>(VerwijderVanSchijf(naast, code));  // left by a run that was killed
  Bestandsgreep greep;
  SysteemFout fout = greep.Open(naast, Openwijze::Nieuw);
  if (!fout) fout = greep.Schrijf(0, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
  if (!fout) fout = greep.Veiligstellen();
  greep.Sluit();
  if (!fout) {
    HernoemOpSchijf(naast, pad, code);
    fout = FoutVan(code);
  }
  if (fout) static_cast<void>(VerwijderVanSchijf(naast, code));
  return fout;
}

// False when the toolkit could not hold the pages.
bool DrukVellen(QPdfWriter& papier, const Tekening& tekening, const Vellen& vellen) {
  papier.setResolution(kStippen);
  papier.setTitle(NaarQt(tekening.titel));
  papier.setPageSize(QPageSize(QSizeF(vellen.breedte, vellen.hoogte), QPageSize::Point, QString(),
                               QPageSize::ExactMatch));
  papier.setPageMargins(QMarginsF(0, 0, 0, 0));
  QPainter verf;
  if (!verf.begin(&papier)) return false;
  const double schaal = static_cast<double>(kStippen) / kPuntenPerInch;
  verf.scale(schaal, schaal);
  for (std::size_t i = 0; i < vellen.vellen.size(); ++i) {
    if (i > 0 && !papier.newPage()) return false;
    TekenVel(verf, tekening, vellen, i);
  }
  return verf.end();
}

}  // namespace

QPainterPath OmtrekVan(const Vorm& vorm) {
  return std::visit([](const auto& wat) { return Pad(wat); }, vorm.wat);
}

void TekenIn(QPainter& verf, const Tekening& tekening, const QRectF& deel) {
  Kwast kwast(verf, deel);
  for (const Vorm& vorm : tekening.vormen) kwast.Teken(vorm);
}

std::optional<std::string> SchrijfPdf(const std::filesystem::path& pad, const Tekening& tekening,
                                      const Vellen& vellen) {
  QBuffer bladen;
  bladen.open(QIODevice::WriteOnly);
  bool heel = false;
  {
    QPdfWriter papier(&bladen);
    heel = DrukVellen(papier, tekening, vellen);
  }
  const SysteemFout fout = heel ? ZetNeer(pad, bladen.data())
                                : FoutVan(std::make_error_code(std::errc::not_enough_memory));
  return fout ? std::optional(fout.tekst) : std::nullopt;
}

}  // namespace lb77
