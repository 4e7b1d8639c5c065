// The fixture of a session in a directory of its own.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "app/Hoofdmodule.h"
#include "app/Klok.h"
#include "app/MenuWindow.h"
#include "steun/SpeelToets.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {

// map_ is the program's directory: fresh, empty, and gone after the test.
class SessieToets : public SpeelToets {
 protected:
  // Writes the settings file, without a backup; line feeds become CR LF.
  void ZetIni(std::string_view tekst) const;
  // The settings file as it lies on the disk.
  [[nodiscard]] std::string Ini() const { return Inhoud("LIJNBOOM.INI"); }
  // A file of the program's directory; empty when it is not there.
  [[nodiscard]] std::string Inhoud(const std::filesystem::path& naam) const {
    return LeesBytes(map_ / naam);
  }
  void Schrijf(const std::filesystem::path& naam, std::string_view inhoud) const {
    SchrijfBytes(map_ / naam, inhoud);
  }
  [[nodiscard]] bool Bestaat(const std::filesystem::path& naam) const;
  // True when the settings file has that line, with CR LF behind it.
  [[nodiscard]] bool IniHeeft(std::string_view regel) const;

  // The text with the program's directory for "<map>".
  [[nodiscard]] std::string MetMap(std::string_view tekst) const;

  // The whole program: start-up, main window, and the dialogs of this folder on their entries.
  [[nodiscard]] Programma Sessie();
  // What is done with a session that has not read its settings.
  [[nodiscard]] Programma Met(std::function<void(Hoofdmodule&)> doe);
  // What is done with a session that has come up, and its main window, which does not show.
  [[nodiscard]] Programma MetMenu(std::function<void(Hoofdmodule&, MenuWindow&)> doe);

  // A set with four new files on the disk; it is not put in the settings.
  void MaakSet(std::string_view naam);

  TijdelijkeMap eigen_;
  std::filesystem::path map_ = eigen_.Pad();
  VasteKlok klok_{{2026, 1, 2, 3, 4, 5}};
};

}  // namespace lb77
