// What the settings file has no key for: window sizes, the letters of the viewer, and the directories
// last used.
#pragma once

#include <QSettings>
#include <QSize>
#include <QString>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

namespace lb77 {

// Kept in "lb77-venster.ini" in the program's directory. Without a directory nothing is kept.
// A file that is damaged or cannot be written costs a remembered size and no more.
class VensterInstellingen {
 public:
  explicit VensterInstellingen(const std::filesystem::path& map);

  [[nodiscard]] std::optional<QSize> Maat(std::string_view formulier) const;
  void BewaarMaat(std::string_view formulier, QSize maat);
  // Did the window fill its screen?
  [[nodiscard]] bool IsVol(std::string_view formulier) const;
  void BewaarVol(std::string_view formulier, bool vol);

  // By how many points the letters of the viewer were made larger, or smaller.
  [[nodiscard]] int Vergroting() const;
  void BewaarVergroting(int punten);

  // The directory that the user last chose a file from for this filter; empty when none.
  [[nodiscard]] QString LaatsteMap(std::string_view filter) const;
  void BewaarLaatsteMap(std::string_view filter, const QString& map);

 private:
  std::unique_ptr<QSettings> bestand_;
};

}  // namespace lb77
