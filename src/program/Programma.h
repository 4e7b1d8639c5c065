// The whole program put together: which menu entry starts which dialog.
#pragma once

#include <filesystem>

#include "app/Hoofdmodule.h"
#include "app/Klok.h"
#include "app/MenuWindow.h"
#include "forms/Gesprek.h"

namespace lb77 {

// One session with its main window. `programmaMap` is the program's directory.
class Programma {
 public:
  Programma(Gesprek& gesprek, const Klok& klok, const std::filesystem::path& programmaMap,
            MenuVoor voor = MenuVoor::Draaiboek);

  // Brings the program up to the point where the main window can show; False when it must end.
  [[nodiscard]] bool Start();
  // Shows the main window until it has closed. Before an error that nobody caught goes on its way
  // the settings are saved.
  void Voer();

  [[nodiscard]] Hoofdmodule& Hoofd() { return hoofd_; }
  [[nodiscard]] MenuWindow& Menu() { return menu_; }

 private:
  void HangOp();
  void HangExportOp();
  void HangControlesOp();
  void HangRapportenOp();
  void HangBeeldenOp();

  Hoofdmodule hoofd_;
  MenuWindow menu_;
};

// A session from its start to its end.
void VoerProgramma(Gesprek& gesprek, const Klok& klok, const std::filesystem::path& programmaMap);

}  // namespace lb77
