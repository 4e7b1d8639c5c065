// A form that turns pages when the mouse's wheel turns.
#pragma once

namespace lb77 {

// A base beside Formulier. A front end asks first whether a form is one.
class Bladeraar {
 public:
  Bladeraar() = default;
  virtual ~Bladeraar() = default;
  Bladeraar(const Bladeraar&) = delete;
  Bladeraar& operator=(const Bladeraar&) = delete;

  // What the user does: one page back (-1) or on (1).
  virtual void Blader(int stap) = 0;
};

}  // namespace lb77
