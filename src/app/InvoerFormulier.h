// The base of the forms whose controls need the session: it comes ahead of them.
#pragma once

#include <string_view>

#include "app/Hoofdmodule.h"
#include "forms/Formulier.h"

namespace lb77 {

// Kinds of control that need the session are members of such a form like any other: they take the
// form, and the session from it.
class InvoerFormulier : public Formulier {
 public:
  InvoerFormulier(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd)
      : Formulier(naam, titel), hoofd_(hoofd) {}

  [[nodiscard]] Hoofdmodule& Hoofd() const { return hoofd_; }

 private:
  Hoofdmodule& hoofd_;
};

}  // namespace lb77
