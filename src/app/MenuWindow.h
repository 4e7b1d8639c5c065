// The main window: the menu, the status bar, and which entry is available when.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "app/Hoofdmodule.h"
#include "app/SetOpenen.h"
#include "forms/Formulier.h"
#include "forms/Weergave.h"

namespace lb77 {

// Knows the names, captions and states of all entries; what an entry starts is hung on it from
// above. An entry without an action is disabled. One window for the whole life of the program: its
// load opens the set that was used last, its end stores where it stood.
class MenuWindow final : public Formulier {
 public:
  explicit MenuWindow(Hoofdmodule& hoofd);

  // Hangs what an entry starts on it; nothing happens for a name that the menu does not have or
  // that is greyed for good. An entry that was chosen brings the menu up to date behind its action.
  void Hang(std::string_view naam, std::function<void()> start);

  // Enables what the state of the session allows, and names the action that would be undone.
  void ZetMenu();
  // Shows the active set in the status bar, with its description, if any, behind a comma.
  void ZetStatus(std::string_view omschrijving = {});
  [[nodiscard]] const std::string& StatusTekst() const { return Statusbalk.Tekst(); }

  // How the sets are used that this window and its dialogs open.
  [[nodiscard]] SetGebruik Gebruik() const { return gebruik_; }
  void ZetGebruik(SetGebruik gebruik) { gebruik_ = gebruik; }

  lb77::Statusbalk Statusbalk{*this, "Statusbalk"};

 protected:
  void BijLaden() override;
  void BijToets(ToetsGebeurtenis& toets) override;
  [[nodiscard]] bool MagSluiten() override;

 private:
  void KeuzesKlik(const std::function<void()>& start);
  void OpenLaatsteSet();
  void Afsluiten();
  // Puts the position in the settings; True when it was another one.
  bool BewaarPositie();

  Hoofdmodule& hoofd_;
  SetGebruik gebruik_ = SetGebruik::Schrijven;
  std::deque<MenuKeuze> keuzes_;  // as the table of entries
};

}  // namespace lb77
