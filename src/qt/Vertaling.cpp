#include "qt/Vertaling.h"

#include <optional>

#include "text/Unicode.h"

namespace lb77 {

QString NaarQt(std::string_view windows) {
  QString uit;
  uit.reserve(static_cast<qsizetype>(windows.size()));
  for (const char teken : windows) uit += QChar(static_cast<char16_t>(CodepuntVan(teken)));
  return uit;
}

Overgezet VanQt(const QString& tekst) {
  Overgezet uit;
  for (const char32_t codepunt : tekst.normalized(QString::NormalizationForm_C).toStdU32String()) {
    const std::optional<std::string> windows = CodepuntNaarWindows(codepunt);
    if (windows) {
      uit.tekst += *windows;
    } else {
      uit.geweigerd = true;
    }
  }
  return uit;
}

// By way of UTF-8, which on a system of bytes lets through what is no valid name.
QString PadNaarQt(const std::filesystem::path& pad) {
  const std::u8string tekst = pad.u8string();
  return QString::fromUtf8(reinterpret_cast<const char*>(tekst.data()),
                           static_cast<qsizetype>(tekst.size()));
}

std::filesystem::path PadVanQt(const QString& pad) {
  return pad.toStdU16String();
}

}  // namespace lb77
