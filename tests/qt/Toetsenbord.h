// Plays a script in the windows of a whole session, by the keyboard alone.
#pragma once

#include <QObject>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Vensterproef.h"
#include "script/Instructie.h"

namespace lb77 {

// Each instruction waits until a form with its control is on top, goes there by Tab and Shift+Tab, and
// leaves a field by Tab. BackButton is Escape; what is clicked or ticked is so by Space.
class Toetsenbord : public Vensterproef {
 protected:
  // What it holds ready at its head counts from now on; the rest from the first window on.
  void Neem(std::string_view draaiboek);
  [[nodiscard]] bool Klaar() const { return volgende_ == instructies_.size(); }
  // The line at which the script stands.
  [[nodiscard]] std::string Hier() const;
  // What the script wants shown; here a failure.
  virtual void Toon(const Instructie& een);

 private:
  void Kijk();
  // Is its control there to be gone to?
  [[nodiscard]] bool Kan(QWidget& venster);
  void Doe(const Instructie& een);
  void Vul(const Instructie& een);
  void Druk(const std::string& naam);
  void Schakel(const std::string& naam);
  void Stel(const Instructie& een);
  // False, after a failure, when Tab does not get there.
  [[nodiscard]] bool GaNaar(const std::string& naam);

  std::vector<Instructie> instructies_;
  std::size_t volgende_ = 0;
  std::vector<const QWidget*> bezig_;  // the windows in which an instruction has not ended
  int gewacht_ = 0;                    // looks since the last instruction
  QObject anker_;
};

}  // namespace lb77
