#include <gtest/gtest.h>

#include "entry/PlaatsVraagMetDialogen.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

class PlaatsVraagTest : public FamilieToets {
 protected:
  void Zoek(std::string_view draaiboek, std::string_view naam, std::int16_t gedeeltelijk,
            std::int16_t toevoegen, std::int16_t nr, std::string_view verslag,
            const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          PlaatsVraagMetDialogen vraag(hoofd.gesprek);
          EXPECT_EQ(hoofd.Plaats.Nr(naam, gedeeltelijk, "", toevoegen, vraag), nr);
          if (nr > 0) prov_ = hoofd.Plaats.Prov(nr);
        },
        verslag, plek);
  }

  std::string prov_;
};

TEST_F(PlaatsVraagTest, EenGevondenPlaatsWordtBevestigd) {
  Bouw().Plaats("Amsterdam", "NH");
  Zoek("antwoord Ja", "amst", -1, -1, 2, R"(
    ? vraag Ja/Nee "Gevonden: Amsterdam (NH). Is deze Plaats bedoeld ?" -> Ja
  )");
}

TEST_F(PlaatsVraagTest, NaNeeKanErVerderGezochtWorden) {
  Bouw().Plaats("Amsterdam", "NH");
  Bouw().Plaats("Amstelveen", "NH");
  Zoek("antwoord Nee Ja Ja", "amst", -1, -1, 3, R"(
    ? vraag Ja/Nee "Gevonden: Amsterdam (NH). Is deze Plaats bedoeld ?" -> Nee
    ? vraag Ja/Nee "Nog verder zoeken ?" -> Ja
    ? vraag Ja/Nee "Gevonden: Amstelveen (NH). Is deze Plaats bedoeld ?" -> Ja
  )");
  Zoek("antwoord Nee Nee", "amst", -1, -1, -1, R"(
    ? vraag Ja/Nee "Gevonden: Amsterdam (NH). Is deze Plaats bedoeld ?" -> Nee
    ? vraag Ja/Nee "Nog verder zoeken ?" -> Nee
  )");
}

TEST_F(PlaatsVraagTest, EenOnbekendePlaatsWordtToegevoegdMetHaarProvincie) {
  Bouw().Plaats("Amsterdam", "NH");
  Zoek("antwoord Ja\nvul ProvCode zh\ndruk OKButton", "Delft", 0, 0, 3, R"(
    ? vraag Ja/Nee "Plaats \"Delft\" is onbekend.\nPlaats toevoegen aan het Plaatsbestand ?" -> Ja
    + VraagProv "Invoer Plaats - Provinciecode"
    - VraagProv
  )");
  EXPECT_EQ(prov_, "ZH");
}

TEST_F(PlaatsVraagTest, ZonderProvincieBlijftDeCodeBlank) {
  Zoek("antwoord Ja\ntoon PltsLabel\ntoets Escape", "Delft", 0, 0, 2, R"(
    ? vraag Ja/Nee "Plaats \"Delft\" is onbekend.\nPlaats toevoegen aan het Plaatsbestand ?" -> Ja
    + VraagProv "Invoer Plaats - Provinciecode"
    = PltsLabel "Delft"
    - VraagProv
  )");
  EXPECT_EQ(prov_, "");
}

TEST_F(PlaatsVraagTest, NeeVoegtGeenPlaatsToe) {
  Zoek("antwoord Nee", "Delft", 0, 0, -1, R"(
    ? vraag Ja/Nee "Plaats \"Delft\" is onbekend.\nPlaats toevoegen aan het Plaatsbestand ?" -> Nee
  )");
  Stil([](Hoofdmodule& hoofd) { EXPECT_EQ(hoofd.Plaats.AantalRecords(), 1); });
}

}  // namespace
}  // namespace lb77
