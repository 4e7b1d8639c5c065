// What an export to the contact service asks beforehand.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "contact/GciOpties.h"
#include "forms/Keuzen.h"
#include "reporting/GrensVak.h"
#include "reporting/KetenFormulier.h"

namespace lb77 {

class ExpGCIParam final : public KetenFormulier {
 public:
  // `opties` gets the choices when the export is started.
  ExpGCIParam(Hoofdmodule& hoofd, GciOpties& opties);

  // The user started the export.
  [[nodiscard]] bool Gekozen() const { return gekozen_; }

 private:
  std::string jaarMelding_;  // stands before the field that says it

 public:
  GrensVak MinAantalPersonen;
  GrensVak MinAantalJaren;
  GrensVak MaxGatJaren;
  GrensVak MaxJaartal;
  Vinkje OokCorrectiesBox{*this, "OokCorrectiesBox", "Datums met correctie meetellen ?"};
  Vinkje OokMoedersWoonplaatsBox{*this, "OokMoedersWoonplaatsBox",
                                 "Geboorteplaats kind tellen als woonplaats van moeder ?"};
  Keuzevak GeslachtBox{*this, "GeslachtBox", "Geslacht van de inzender", {"Man", "Vrouw"}};
  Keuzevak PublicatieBox{
      *this, "PublicatieBox", "Toestemming voor publicatie van uw reeksen ?", {"Ja", "Nee"}};
  Tekstvak EmailAdres{*this, "EmailAdres", "E-mail adres van de inzender:"};
  Knop StartExportButton{*this, "StartExportButton", "&Start Export"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  // A number: its field, its key, its bounds and what stands for any other value.
  struct Getalkeuze {
    GrensVak& vak;
    std::string_view tag;
    int laagste;
    int hoogste;
    int standaard;
    int GciOpties::*doel;
  };
  [[nodiscard]] std::array<Getalkeuze, 4> Getallen();
  [[nodiscard]] std::string Email() const;
  [[nodiscard]] bool EmailAdresVerlaten();
  void StartExportButtonKlik();
  void Bewaar();

  GciOpties& opties_;
  bool gekozen_ = false;
};

}  // namespace lb77
