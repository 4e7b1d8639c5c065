// What a script holds ready: answers, files and stop requests, in order.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "forms/Gesprek.h"
#include "script/Instructie.h"

namespace lb77 {

// Three queues of their own, so that a file may be held ready before or behind an answer.
class Voorraad {
 public:
  // Precondition: IsKlaarzetten(instructie.soort).
  void ZetKlaar(const Instructie& instructie);

  // The next answer; nothing when none is left.
  [[nodiscard]] std::optional<Antwoord> NeemAntwoord();
  // The next path as the script wrote it, in UTF-8, empty for a question that is cancelled; nothing
  // when none is left.
  [[nodiscard]] std::optional<std::string> NeemBestand();
  // One test for a stop request. True when the stop that stands first falls due at it.
  [[nodiscard]] bool TelStopTest();

  // What nobody took, one text each with its line, in UTF-8.
  [[nodiscard]] std::vector<std::string> Ongebruikt() const;

 private:
  template <class T>
  struct Stuk {
    T waarde;
    int regel;
  };

  std::deque<Stuk<Antwoord>> antwoorden_;
  std::deque<Stuk<std::string>> bestanden_;
  std::deque<Stuk<int>> stops_;  // the tests that are still to come, the last one included
};

}  // namespace lb77
