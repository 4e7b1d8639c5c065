// The group of fields with which every report asks its title, introduction and closing lines.
#pragma once

#include <string_view>

#include "app/JaNeeVak.h"
#include "forms/Rij.h"
#include "forms/Velden.h"
#include "reporting/HTMLPagina.h"
#include "reporting/OptieTabel.h"

namespace lb77 {

class Hoofdmodule;

class TitelVelden {
 public:
  // `sectie` of the settings keeps the two boxes.
  TitelVelden(Formulier& formulier, std::string_view sectie);

  // Title as given, no introduction, the two boxes from the settings.
  void Laad(const IniClass& ini, std::string_view titel);
  // The texts that the fields ask for; `jaar` goes into the copyright line.
  [[nodiscard]] PaginaTeksten Teksten(IniClass& ini, int jaar) const;
  void Bewaar(IniClass& ini) const;

  JaNeeVak CopyrightBox;
  JaNeeVak OokLB77Box;
  Tekstvak TitelTekst;
  Tekstvak Inleiding1;
  Tekstvak Inleiding2;
  Tekstvak Inleiding3;

 private:
  bool copyright_ = false;
  bool programma_ = false;
  OptieTabel keuzen_;
};

// The text cut to the 81 characters that a report keeps of it.
[[nodiscard]] std::string PaginaTekst(std::string_view tekst);

// "Copyright (jaar) voornaam naam", from the user's own data in the settings.
[[nodiscard]] std::string CopyrightRegel(IniClass& ini, int jaar);

}  // namespace lb77
