// What the widgets tell the binder that the user did.
#pragma once

#include <string>

#include "forms/Keuzen.h"
#include "forms/Velden.h"

namespace lb77 {

// Takes what the user does in a widget to the form.
class Bezorger {
 public:
  Bezorger() = default;
  virtual ~Bezorger() = default;
  Bezorger(const Bezorger&) = delete;
  Bezorger& operator=(const Bezorger&) = delete;

  virtual void Klik(Bediening& bediening) = 0;
  virtual void Dubbelklik(Bediening& bediening) = 0;
  virtual void Kies(Lijst& lijst, int index) = 0;
  // `geweigerd`: something was typed or pasted that cannot be stored.
  virtual void Bewerkt(Invoerveld& veld, const std::string& tekst, bool geweigerd) = 0;
};

}  // namespace lb77
