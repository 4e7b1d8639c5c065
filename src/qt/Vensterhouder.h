// What a window hands to the binder that owns it.
#pragma once

#include <QKeyEvent>
#include <QPoint>
#include <filesystem>

namespace lb77 {

// The binder as its window sees it.
class Vensterhouder {
 public:
  Vensterhouder() = default;
  virtual ~Vensterhouder() = default;
  Vensterhouder(const Vensterhouder&) = delete;
  Vensterhouder& operator=(const Vensterhouder&) = delete;

  // The frame's close.
  virtual void SluitVenster() = 0;
  // A key that no control has the focus for.
  virtual void ToetsInVenster(const QKeyEvent& toets) = 0;
  // The wheel was turned a notch where no control wanted it: back (-1) or on (1).
  virtual void Gerold(int stap) = 0;
  virtual void Verplaatst(QPoint plek) = 0;
  // A file that was dropped on the window, which its form takes.
  virtual void BestandGebracht(const std::filesystem::path& bestand) = 0;
};

}  // namespace lb77
