// Steers a whole session: each step waits until its form is on top.
#pragma once

#include <QObject>
#include <functional>
#include <string>
#include <vector>

namespace lb77 {

// Looks around every few milliseconds, also in the event loops of forms within forms and during
// long work.
class Piloot {
 public:
  struct Stap {
    std::string formulier;
    std::function<void()> doe;
  };

  explicit Piloot(std::vector<Stap> stappen);

  // All steps were taken.
  [[nodiscard]] bool Klaar() const { return volgende_ == stappen_.size(); }
  // Called at each look with the name of the form on top.
  std::function<void(const std::string& formulier)> bijBlik;

 private:
  void Kijk();

  std::vector<Stap> stappen_;
  std::size_t volgende_ = 0;
  QObject anker_;
};

}  // namespace lb77
