// What the head of a GEDCOM file tells.
#pragma once

#include <string>

#include "app/Klok.h"

namespace lb77 {

// The user of the program, as the settings have him.
struct GedInzender {
  std::string voornaam{};
  std::string naam{};
  std::string adres{};
  std::string postcode{};
  std::string plaats{};
  std::string land{};
  std::string telefoon{};
};

struct GedKopGegevens {
  Tijdstip nu{};
  std::string bestandsnaam{};  // as the user typed it
  std::string set{};
  GedInzender inzender{};
};

}  // namespace lb77
