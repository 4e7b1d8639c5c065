// A program with a set of three persons, on which every form can be made.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "Formulierproef.h"
#include "app/Klok.h"
#include "program/AlleFormulieren.h"
#include "program/Programma.h"
#include "steun/BouwFamilie.h"
#include "steun/TijdelijkeMap.h"
#include "store/Rubrieken.h"
#include "store/SetPaden.h"

namespace lb77 {

class Programmaproef : public Formulierproef {
 protected:
  void SetUp() override {
    programma_.emplace(gesprek, klok_, map_.Pad());
    ASSERT_TRUE(programma_->Start());
    MaakSet();
  }

  // A set with a family of three.
  void MaakSet() {
    Hoofdmodule& hoofd = programma_->Hoofd();
    const SetPaden paden = SetPaden::Van(map_ / "DATA", "ORANJE");
    std::filesystem::create_directories(paden.tekst);
    ASSERT_FALSE(hoofd.bestanden.OpenSet(paden));
    ASSERT_TRUE(hoofd.Persoon.NieuwAdm());
    ASSERT_TRUE(hoofd.Relatie.NieuwAdm());
    ASSERT_TRUE(hoofd.Opmerking.NieuwAdm());
    ASSERT_TRUE(hoofd.Plaats.NieuwAdm());
    BouwFamilie bouw(hoofd.Persoon, hoofd.Relatie, hoofd.Plaats, hoofd.Opmerking);
    const auto willem = bouw.Man("Willem", "van Oranje", {{"GebDatum", "24-04-1533"}});
    const auto charlotte = bouw.Vrouw("Charlotte", "de Bourbon");
    const auto louise = bouw.Vrouw("Louise Juliana", "van Nassau", {{"GebDatum", "31-03-1576"}});
    static_cast<void>(bouw.Relatie(willem, charlotte, {louise}));
    bouw.OpmerkingBijPersoon(willem, persoonrubriek::kVoornaam, {"Bijgenaamd de Zwijger"}, 0);
    hoofd.ActieveSetNaam = "ORANJE";
    hoofd.Ini.IniZet("Sets", "Set1", "ORANJE,De familie van Oranje");
  }

  // The main window of somebody who works by hand, with its start page: over the set, or without one.
  MenuWindow& MaakHoofdscherm(bool metSet) {
    if (metSet) {
      programma_->Hoofd().Ini.IniZet("Systeem", "Set", "ORANJE");
    } else {
      programma_.emplace(gesprek, klok_, leeg_.Pad());
      EXPECT_TRUE(programma_->Start());
    }
    programma_->Menu().MaakStartblad();
    return programma_->Menu();
  }

  // Makes the form; the one that asks for a file gets one.
  GemaaktFormulier Maak(const FormulierRij& rij) {
    if (rij.naam == "BekijkTekst") {
      SchrijfBytes(map_ / "brief.txt", "Geachte familie,\r\n");
      Bestand(map_ / "brief.txt");
    }
    return rij.maak(*programma_);
  }

  TijdelijkeMap map_;
  TijdelijkeMap leeg_;
  VasteKlok klok_{{2026, 1, 2, 3, 4, 5}};
  std::optional<Programma> programma_;
};

}  // namespace lb77
