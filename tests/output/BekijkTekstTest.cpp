#include <gtest/gtest.h>

#include "app/Hoofdmodule.h"
#include "app/Klok.h"
#include "output/BekijkTekst.h"
#include "steun/SpeelToets.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

class BekijkTekstTest : public SpeelToets {
 protected:
  BekijkTekstTest() { basismap_ = map_.Pad(); }
  Programma Bekijkt() {
    return [this](Gesprek& gesprek) {
      Hoofdmodule hoofd(gesprek, klok_, map_.Pad());
      BekijkTekst bekijk(hoofd);
      gesprek.ToonModaal(bekijk);
    };
  }

  TijdelijkeMap map_;
  VasteKlok klok_{Tijdstip{2024, 1, 2, 3, 4, 5}};
};

TEST_F(BekijkTekstTest, ToontHetGekozenBestand) {
  SchrijfBytes(map_ / "brief.txt", "Beste neef,\r\n");
  Verwacht(R"(
      bestand brief.txt
      toon UitvoerBox
      druk BackButton
    )",
           Bekijkt(), R"(
      > openen "Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt|GEDCOM-bestanden (*.GED)|*.GED" -> "brief.txt"
      + BekijkTekst "Bekijk Tekstbestand"
      = UitvoerBox "Beste neef,"
      - BekijkTekst
    )");
}

TEST_F(BekijkTekstTest, SluitOngezienZonderBestand) {
  Verwacht("bestand", Bekijkt(), R"(
      > openen "Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt|GEDCOM-bestanden (*.GED)|*.GED" -> -
    )");
}

TEST_F(BekijkTekstTest, EenOnleesbaarBestandWordtGemeld) {
  Verwacht(R"(
      bestand weg.txt
      toon UitvoerBox
      sluit
    )",
           Bekijkt(), R"(
      > openen "Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt|GEDCOM-bestanden (*.GED)|*.GED" -> "weg.txt"
      + BekijkTekst "Bekijk Tekstbestand"
      = UitvoerBox "Fout: Bestand niet gevonden"
      - BekijkTekst
    )");
}

}  // namespace
}  // namespace lb77
