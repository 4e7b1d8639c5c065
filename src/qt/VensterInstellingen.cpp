#include "qt/VensterInstellingen.h"

#include <QByteArray>
#include <QCryptographicHash>

#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr const char* kVergroting = "lezen/vergroting";

QString MaatSleutel(std::string_view formulier) {
  return QStringLiteral("venster/") + NaarQt(formulier);
}

QString VolSleutel(std::string_view formulier) {
  return MaatSleutel(formulier) + QStringLiteral("-vol");
}

// A filter holds characters that a key may not.
QString MapSleutel(std::string_view filter) {
  const QByteArray bytes(filter.data(), static_cast<qsizetype>(filter.size()));
  const QByteArray som = QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex();
  return QStringLiteral("map/") + QString::fromLatin1(som);
}

}  // namespace

VensterInstellingen::VensterInstellingen(const std::filesystem::path& map) {
  if (map.empty()) return;
  bestand_ = std::make_unique<QSettings>(PadNaarQt(map / "lb77-venster.ini"), QSettings::IniFormat);
}

std::optional<QSize> VensterInstellingen::Maat(std::string_view formulier) const {
  if (!bestand_) return std::nullopt;
  const QSize maat = bestand_->value(MaatSleutel(formulier)).toSize();
  if (!maat.isValid() || maat.isEmpty()) return std::nullopt;
  return maat;
}

void VensterInstellingen::BewaarMaat(std::string_view formulier, QSize maat) {
  if (bestand_) bestand_->setValue(MaatSleutel(formulier), maat);
}

bool VensterInstellingen::IsVol(std::string_view formulier) const {
  return bestand_ && bestand_->value(VolSleutel(formulier)).toBool();
}

void VensterInstellingen::BewaarVol(std::string_view formulier, bool vol) {
  if (bestand_) bestand_->setValue(VolSleutel(formulier), vol);
}

int VensterInstellingen::Vergroting() const {
  return bestand_ ? bestand_->value(QLatin1String(kVergroting)).toInt() : 0;
}

void VensterInstellingen::BewaarVergroting(int punten) {
  if (bestand_) bestand_->setValue(QLatin1String(kVergroting), punten);
}

QString VensterInstellingen::LaatsteMap(std::string_view filter) const {
  return bestand_ ? bestand_->value(MapSleutel(filter)).toString() : QString();
}

void VensterInstellingen::BewaarLaatsteMap(std::string_view filter, const QString& map) {
  if (bestand_) bestand_->setValue(MapSleutel(filter), map);
}

}  // namespace lb77
