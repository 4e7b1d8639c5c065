// A form that can tell why one of its controls is greyed.
#pragma once

#include <string>

#include "forms/Bediening.h"

namespace lb77 {

// A base beside Formulier. A front end shows the reason where the user points at the control.
class Redengever {
 public:
  Redengever() = default;
  virtual ~Redengever() = default;
  Redengever(const Redengever&) = delete;
  Redengever& operator=(const Redengever&) = delete;

  // Of a control that is disabled.
  [[nodiscard]] virtual std::string WaaromGrijs(const Bediening& bediening) const = 0;
};

}  // namespace lb77
