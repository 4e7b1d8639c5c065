// The fields that selections share.
#pragma once

#include <string_view>

#include "entry/DatumVak.h"
#include "entry/InvoerVak.h"
#include "forms/Keuzen.h"
#include "reports/Selecties.h"

namespace lb77 {

// Puts the text back without surrounding blanks, and gives it.
const std::string& Getrimd(Invoerveld& veld);

// Parts of a name.
struct NaamVelden {
  explicit NaamVelden(InvoerFormulier& formulier);

  InvoerVak VoorNm;
  InvoerVak AchterNm;

  [[nodiscard]] NaamKeus Keus();
};

struct GeslachtVelden {
  explicit GeslachtVelden(Formulier& formulier);

  Vinkje ZoekMan;
  Vinkje ZoekVrouw;

  void Laad();
  [[nodiscard]] GeslachtKeus Keus() const { return {ZoekMan.Gekozen(), ZoekVrouw.Gekozen()}; }
};

// "VanDatum<stam>" and "TotDatum<stam>"; `wat` tells a screen reader of which event.
struct PeriodeVelden {
  PeriodeVelden(InvoerFormulier& formulier, std::string_view stam, std::string_view wat);

  DatumVak Van;
  DatumVak Tot;

  void Laad();
  [[nodiscard]] Tijdvak Keus() const { return {Van.Tekst(), Tot.Tekst()}; }

 private:
  InvoerFormulier& formulier_;
};

}  // namespace lb77
