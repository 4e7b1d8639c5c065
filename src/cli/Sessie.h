// One session without a screen, for one everyday command.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "cli/Bediener.h"
#include "cli/Opdrachten.h"
#include "cli/Werk.h"
#include "program/Programma.h"

namespace lb77 {

// What a command does with the settings: a session of its own, or what later runs find.
enum class Instelling { VoorNu, VoorLater };
// What it does with the file set that it names.
enum class Omgang { Lezen, Schrijven };

class Sessie {
 public:
  using InMenu = std::function<void(Werk& menu)>;

  Sessie(const Omgeving& omgeving, Instelling instelling);

  // Starts up, opens the set, and does in the main window what `inMenu` does. The exit status: 1
  // when any of it failed, which has been told. A set that is only read must be complete, one that
  // is written not in use elsewhere, unless `toch`; and its last action has come to its end.
  [[nodiscard]] int Voer(std::string_view naam, Omgang omgang, const InMenu& inMenu,
                         bool toch = false);
  // The same with the set that happens to be in use.
  [[nodiscard]] int Voer(const InMenu& inMenu);
  // The same without a main window, so that no set is opened.
  [[nodiscard]] int VoerZonderVenster(const std::function<void()>& doe);

  // Is the set in the list, and when it is only read complete? Told when it is not.
  [[nodiscard]] bool Kent(std::string_view naam, Omgang omgang);

  [[nodiscard]] MenuWindow& Menu() { return programma_.Menu(); }
  [[nodiscard]] Hoofdmodule& Hoofd() { return programma_.Hoofd(); }

  Bediener bediener;

 private:
  [[nodiscard]] bool Start();
  [[nodiscard]] bool IsVrij(const std::string& set, Omgang omgang, bool toch);
  void KiesSet(const std::string& set, Omgang omgang);
  [[nodiscard]] int InVenster(const InMenu& inMenu);

  Programma programma_;
};

}  // namespace lb77
