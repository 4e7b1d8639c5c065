// One list of all forms, each with a way to make it on sample data: what walks over all dialogs
// (tests, screenshots) walks over this list.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "forms/Formulier.h"
#include "program/Programma.h"

namespace lb77 {

// A form, and what it refers to for as long as it lives.
struct GemaaktFormulier {
  std::shared_ptr<void> gegevens;
  std::unique_ptr<Formulier> formulier;
};

// `maak` expects a started session with an open set that holds person 2.
struct FormulierRij {
  std::string_view naam;
  GemaaktFormulier (*maak)(Programma& programma);
};

// All forms but the main window, in the order in which a user meets them.
[[nodiscard]] std::span<const FormulierRij> AlleFormulieren();

}  // namespace lb77
