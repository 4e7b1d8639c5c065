// A dialog without a toolkit: its controls, its life, its focus, and what the user does to it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Keuzen.h"
#include "forms/Toets.h"
#include "forms/Velden.h"
#include "forms/Weergave.h"

namespace lb77 {

// The base of all forms. A form declares its controls as members, in tab order, and hangs its
// handlers on them. A front end drives it by the operations under "what the user does" and by
// nothing else; all rules about leave checks, Enter, Escape and swallowed clicks live here, once.
//
// Focus: at most one control has it. Leaving a control by the user runs its leave check; when that
// fails the focus stays and whatever caused the leaving is swallowed. BackButton, CancelButton,
// Escape and the frame run no leave check. Moving the focus from code runs no leave check, and the
// entered event of the new control, unless it had the focus already. A control that is hidden or
// disabled meanwhile is left unchecked.
// What arrives while a leave check runs (its own boxes move a toolkit's focus) is swallowed.
class Formulier {
 public:
  Formulier(std::string_view naam, std::string_view titel);
  virtual ~Formulier() = default;
  Formulier(const Formulier&) = delete;
  Formulier& operator=(const Formulier&) = delete;

  [[nodiscard]] const std::string& Naam() const { return naam_; }
  [[nodiscard]] const std::string& Titel() const { return titel_; }
  void ZetTitel(std::string_view titel) { titel_ = titel; }
  // The chapter of the manual that tells about this form.
  [[nodiscard]] const std::string& HulpOnderwerp() const { return hulpOnderwerp_; }
  void ZetHulpOnderwerp(std::string_view onderwerp) { hulpOnderwerp_ = onderwerp; }

  // The controls in the order of their declaration.
  [[nodiscard]] const std::vector<Bediening*>& Bedieningen() const { return bedieningen_; }
  // The control of that name, null when there is none.
  [[nodiscard]] Bediening* Zoek(std::string_view naam) const;
  // What leaves without storing: BackButton, else CancelButton, else null.
  [[nodiscard]] Bediening* TerugKnop() const;

  [[nodiscard]] bool Gesloten() const { return gesloten_; }
  [[nodiscard]] bool Verborgen() const { return verborgen_; }
  // A user's change since the form was loaded.
  [[nodiscard]] bool Gewijzigd() const { return gewijzigd_; }
  [[nodiscard]] bool Bezig() const { return bezig_; }
  [[nodiscard]] Bediening* FocusVeld() const { return focus_; }

  struct Plek {
    int x = 0;
    int y = 0;
  };
  // Where the form stands on the screen, when that matters to it.
  [[nodiscard]] const std::optional<Plek>& Positie() const { return positie_; }
  void ZetPositie(Plek plek) { positie_ = plek; }

  // The form's life, called by Gesprek::ToonModaal.
  // False when the form closed itself while loading.
  [[nodiscard]] bool Laad();
  void Activeer();
  // Behind the last event, when the form has left the screen.
  void Beeindig();

  // What the user does. A True result means that it went through; False that it was swallowed.
  bool GaNaar(Bediening& bediening);
  // Leaves the control that has the focus, for no other.
  bool VerlaatVeld();
  bool Klik(Bediening& bediening);
  // In a pick list without a double click of its own it presses OKButton.
  bool Dubbelklik(Bediening& bediening);
  // Chooses the item of that index, -1 for none.
  bool Kies(Lijst& lijst, int index);
  // The field's text as the user's editing left it (no filter, no maximum: the toolkit's own editing
  // has seen to those).
  void Bewerkt(Invoerveld& veld, std::string_view tekst);
  // Types one character at the end of the field: its filter and its maximum length apply.
  void Typ(Invoerveld& veld, char teken);
  // A key in the control `doel`, or in the form when null. True when it has been dealt with; a key
  // that is not is the field's own (a character to type).
  bool Toets(Bediening* doel, ToetsGebeurtenis toets);
  // The next control for Tab (`stap` 1) or Shift+Tab (-1), null when there is none.
  [[nodiscard]] Bediening* Buur(const Bediening* van, int stap) const;
  // Closing by the frame: what BackButton or CancelButton does.
  void VraagSluiten();

  // A front end that lets events in while a form repaints says so around it: all input is dropped
  // then, and what would leave the form becomes a stop request.
  void ZetVerversing(bool aan) { verversing_ = aan; }
  [[nodiscard]] bool StopVerzocht() const { return stop_; }
  void VraagStop() { stop_ = true; }

  // For the form itself, and for the front end's base class.
  void Neem(Bediening& bediening) { bedieningen_.push_back(&bediening); }

 protected:
  // The form's own events.
  virtual void BijLaden() {}
  virtual void BijActiveren() {}
  virtual void BijToets(ToetsGebeurtenis&) {}
  virtual void BijGesloten() {}
  // The frame's close when there is no BackButton or CancelButton; False refuses.
  [[nodiscard]] virtual bool MagSluiten() { return true; }

  void Sluit() { gesloten_ = true; }
  // Loads a form that is open once more, for another record: as after its activation the focus goes
  // to the first field unless loading has placed it. When a leave check does this and holds, the user
  // goes on to where he was going.
  void Herlaad();
  void Verberg() { verborgen_ = true; }
  // The field that gets the focus behind the activated event.
  void ZetEersteVeld(Bediening& bediening) { eersteVeld_ = &bediening; }
  // Moves the focus from code. A control that has it already is not entered again.
  void ZetFocus(Bediening& bediening);
  void ZetBezig(bool bezig) { bezig_ = bezig; }
  void WisStop() { stop_ = false; }
  // Where the user is going, while a leave check runs because he goes there; else null.
  [[nodiscard]] Bediening* Doel() const { return doel_; }
  // Runs what BackButton or CancelButton does, without a leave check.
  void Terug();
  // Runs the control's leave check without leaving it. True when it holds, when there is none, and
  // inside a check.
  [[nodiscard]] bool Controleer(Bediening& bediening);

 private:
  [[nodiscard]] static bool IsTerug(const Bediening& bediening);
  [[nodiscard]] static bool Bereikbaar(const Bediening& bediening);
  [[nodiscard]] bool Verstoord(const Bediening& bediening);
  [[nodiscard]] bool Pak(Bediening& bediening);
  [[nodiscard]] bool VerlaatVoor(Bediening& doel);
  void Betreed(Bediening& bediening);
  void BetreedEerste();
  void ToetsIn(Bediening& bediening, ToetsGebeurtenis& toets) const;
  void GaVerder(const Bediening* van, int stap);
  void Schakel(Bediening& bediening);
  bool Wissel(Bediening& bediening);
  void MeldWijziging(Bediening& bediening);
  [[nodiscard]] Bediening* OKVoorLijst(const Bediening& bediening) const;
  [[nodiscard]] bool KiesRegel(Bediening& bediening);
  [[nodiscard]] bool EnterIn(Bediening& bediening);
  [[nodiscard]] bool SpatieIn(Bediening& bediening);
  [[nodiscard]] bool KeuzeToets(Bediening& bediening, int code);
  [[nodiscard]] bool OptieToets(Optie& optie, int code);
  [[nodiscard]] bool StandaardToets(Bediening* doel, const ToetsGebeurtenis& toets);

  std::string naam_;
  std::string titel_;
  std::string hulpOnderwerp_;
  std::vector<Bediening*> bedieningen_;
  Bediening* eersteVeld_ = nullptr;
  Bediening* focus_ = nullptr;
  Bediening* doel_ = nullptr;
  std::optional<Plek> positie_;
  bool gesloten_ = false;
  bool verborgen_ = false;
  bool gewijzigd_ = false;
  bool bezig_ = false;
  bool verversing_ = false;
  bool stop_ = false;
  bool inControle_ = false;  // a leave check is running: its boxes must not cause another
};

}  // namespace lb77
