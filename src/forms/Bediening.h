// What every control of a form has: its name, caption, flags, and the handlers of its events.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/Toets.h"

namespace lb77 {

class Formulier;

enum class BedieningSoort {
  Tekstvak,
  Tekstblok,
  Padvak,
  Label,
  Wissellabel,
  Knop,
  Optie,
  Vinkje,
  Keuzevak,
  Keuzelijst,
  Beeldvlak,
  Tekstpagina,
  Teller,
  MenuKeuze,
  Statusbalk
};

// A control. It lives as a member of its form and is known there under its name; an element of a
// row carries its index in the name: "PersNr(0)". All texts are Windows-1252. Changing a control
// from code raises no event; events are raised by Formulier alone, on behalf of the user.
class Bediening {
 public:
  Bediening(Formulier& formulier, BedieningSoort soort, std::string_view naam,
            std::string_view bijschrift);
  virtual ~Bediening() = default;
  Bediening(const Bediening&) = delete;
  Bediening& operator=(const Bediening&) = delete;

  [[nodiscard]] BedieningSoort Soort() const { return soort_; }
  [[nodiscard]] const std::string& Naam() const { return naam_; }

  // The caption of a button or label, the prompt beside a field.
  [[nodiscard]] const std::string& Bijschrift() const { return bijschrift_; }
  void ZetBijschrift(std::string_view bijschrift) { bijschrift_ = bijschrift; }
  // The text that stands before the control, empty when it has none.
  [[nodiscard]] virtual std::string Prompt() const { return {}; }
  // What a screen reader says: the name given here, else prompt or caption, else the control's name.
  [[nodiscard]] virtual std::string Leesnaam() const;
  void ZetLeesnaam(std::string_view leesnaam) { leesnaam_ = leesnaam; }

  [[nodiscard]] bool Zichtbaar() const { return zichtbaar_; }
  void ZetZichtbaar(bool zichtbaar) { zichtbaar_ = zichtbaar; }
  [[nodiscard]] bool Ingeschakeld() const { return ingeschakeld_; }
  void ZetIngeschakeld(bool ingeschakeld) { ingeschakeld_ = ingeschakeld; }
  // Visible and enabled: the user can reach it.
  [[nodiscard]] bool Bruikbaar() const { return zichtbaar_ && ingeschakeld_; }

  // Can this kind of control hold the focus at all?
  [[nodiscard]] virtual bool KanFocus() const { return false; }
  // What a transcript shows of it: a field its text, a button or label its caption.
  [[nodiscard]] virtual std::string Waarde() const { return bijschrift_; }

  // The handlers, set by the form that owns the control. A kind of control with rules of its own
  // has them under "the kind's own events" below; those are run first.
  void BijBetreden(std::function<void()> doe) { bijBetreden_ = std::move(doe); }
  // The leave check: False keeps the focus here.
  void BijVerlaten(std::function<bool()> doe) { bijVerlaten_ = std::move(doe); }
  void BijToets(std::function<void(ToetsGebeurtenis&)> doe) { bijToets_ = std::move(doe); }
  void BijKlik(std::function<void()> doe) { bijKlik_ = std::move(doe); }
  void BijDubbelklik(std::function<void()> doe) { bijDubbelklik_ = std::move(doe); }
  // The user typed in a field or changed a choice.
  void BijWijziging(std::function<void()> doe) { bijWijziging_ = std::move(doe); }

  [[nodiscard]] bool HeeftKlik() const { return static_cast<bool>(bijKlik_); }
  [[nodiscard]] virtual bool HeeftDubbelklik() const { return static_cast<bool>(bijDubbelklik_); }

 protected:
  // The kind's own events, each run ahead of the form's handler of the same event.
  virtual void OpBetreden() {}
  // False keeps the focus here, and the form's check is not run.
  [[nodiscard]] virtual bool OpVerlaten() { return true; }
  // A key that it marks as dealt with does not reach the form.
  virtual void OpToets(ToetsGebeurtenis&) {}
  virtual void OpDubbelklik() {}
  virtual void OpWijziging() {}

 private:
  friend class Formulier;

  BedieningSoort soort_;
  std::string naam_;
  std::string bijschrift_;
  std::string leesnaam_;
  bool zichtbaar_ = true;
  bool ingeschakeld_ = true;
  std::function<void()> bijBetreden_;
  std::function<bool()> bijVerlaten_;
  std::function<void(ToetsGebeurtenis&)> bijToets_;
  std::function<void()> bijKlik_;
  std::function<void()> bijDubbelklik_;
  std::function<void()> bijWijziging_;
};

}  // namespace lb77
