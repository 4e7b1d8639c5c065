// The main window: the menu, the status bar, and which entry is available when.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "app/Hoofdmodule.h"
#include "app/SetOpenen.h"
#include "app/Startblad.h"
#include "forms/Bestandsontvanger.h"
#include "forms/Formulier.h"
#include "forms/Redengever.h"
#include "forms/Weergave.h"

namespace lb77 {

// Whose menu it is: the one that scripts know, or that of a user, which has the ways to a family too.
enum class MenuVoor { Draaiboek, Gebruiker };

// Knows the names, captions and states of all entries; what an entry starts is hung on it from
// above. An entry without an action is disabled. One window for the whole life of the program: its
// load opens the set that was used last, its end stores where it stood.
class MenuWindow final : public Formulier, public Bestandsontvanger, public Redengever {
 public:
  explicit MenuWindow(Hoofdmodule& hoofd, MenuVoor voor = MenuVoor::Draaiboek);

  // Hangs what an entry, or a button of the start page, starts on it; nothing happens for a name that
  // the window does not have or an entry that is greyed for good. An entry that was chosen brings the menu up to date behind its action.
  void Hang(std::string_view naam, std::function<void()> start);

  // Gives it a start page and makes it the window of somebody who works by hand, whose questions
  // and reminders no script is asked. Before it is loaded.
  Startblad& MaakStartblad();
  [[nodiscard]] bool VoorGebruiker() const { return startblad_ != nullptr; }
  // Does what the user asked for, and brings the menu up to date behind it.
  void Doe(const std::function<void()>& start) { KeuzeKlik(start); }
  // At its load the set that was used last stays closed when another run of the program has it: who
  // comes for something else is not asked about it.
  void LaatSetElders() { laatElders_ = true; }
  // What is done as soon as the window is on the screen.
  void BijBegin(std::function<void()> doe) { begin_ = std::move(doe); }
  // What is done with a GEDCOM file that the user drops on the window.
  void BijBestand(std::function<void(const std::filesystem::path&)> doe) {
    bijBestand_ = std::move(doe);
  }
  [[nodiscard]] bool Neemt(const std::filesystem::path& bestand) const override;
  void Ontvang(const std::filesystem::path& bestand) override;
  [[nodiscard]] std::string WaaromGrijs(const Bediening& bediening) const override;

  // Enables what the state of the session allows, and names the action that would be undone.
  void ZetMenu();
  // Shows the active set in the status bar, with its description, if any, behind a comma.
  void ZetStatus(std::string_view omschrijving = {});

  // How the sets are used that this window and its dialogs open.
  [[nodiscard]] SetGebruik Gebruik() const { return gebruik_; }
  void ZetGebruik(SetGebruik gebruik) { gebruik_ = gebruik; }

  lb77::Statusbalk Statusbalk{*this, "Statusbalk"};

 protected:
  void BijLaden() override;
  void BijActiveren() override;
  void BijToets(ToetsGebeurtenis& toets) override;
  [[nodiscard]] bool MagSluiten() override;

 private:
  void KnopKlik(const std::function<void()>& start);
  void KeuzeKlik(const std::function<void()>& start);
  void OpenLaatsteSet();
  void Afsluiten();
  // Puts the position in the settings; True when it was another one.
  bool BewaarPositie();

  Hoofdmodule& hoofd_;
  SetGebruik gebruik_ = SetGebruik::Schrijven;
  bool laatElders_ = false;
  std::deque<MenuKeuze> keuzes_;  // in the order of the table of entries
  std::unique_ptr<Startblad> startblad_;
  std::function<void()> begin_;
  std::function<void(const std::filesystem::path&)> bijBestand_;
};

}  // namespace lb77
